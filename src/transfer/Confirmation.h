#pragma once

#include "donnees/Transfert.h"

/// Asks the operator to confirm a transfer: what, which file, on which port. No is the default button.
/// AucunTransfert is never confirmed.
bool ConfirmeTransfert(ModeTransfert mode);
