#pragma once

/// Asks the operator to confirm a transfer: what, which file, on which port. No is the default button.
/// mode: a value of ModeTransfert, 1 to 5; no other is confirmed.
bool ConfirmeTransfert(int mode);
