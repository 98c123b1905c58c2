#pragma once

/// Asks the operator to confirm the transfer of TypeTransfert: what, which file, on which port. No is the default
/// button.
bool ConfirmeTransfert();
