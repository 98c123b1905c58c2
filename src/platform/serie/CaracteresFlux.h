#pragma once

// The characters of XON/XOFF.

constexpr char Xon = 17;  ///< the other side may send
constexpr char Xoff = 19; ///< the other side must wait
