#pragma once

// The transfer under way, as the menu commands, the dialogs and the routines share it.

/// Values of TypeTransfert.
enum ModeTransfert { EmissionProgramme = 1, EmissionJauges = 2 };

extern int TypeTransfert; ///< mode of the transfer, set by the menu command
extern int FinTransfert;  ///< 1: a reception has reached its end
extern int AnnuleRECEPT;  ///< 1: the operator has cancelled; stays until the next reception
