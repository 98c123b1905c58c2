#pragma once

#include "platform/base/Erreur.h"

class MSComm;
class VueTransfert;

// The session on the serial port. A transfer opens the port with the settings of ParamCom, runs, and closes it.

/// The serial control of the main window.
MSComm &Controle();

/// Gives the control the settings of ParamCom and opens the port if it is closed. A failure is told to the operator,
/// and the remaining steps are left out. The transfer routine then finds the port closed.
void OuvrePortCOM();

/// Closes the port if it is open. A failure is told to the operator, and the cancel button then reads "Close".
void FermePortCOM(VueTransfert &vue);

/// The end of a transfer routine that failed: tells the operator and closes the port.
void ErreurPortCOM(const Erreur &erreur, VueTransfert &vue);

/// The operator's cancel: if the port is open, closes it and says so as the status. A failure is not told.
void CoupePortCOM(VueTransfert &vue);

void Mnu_Com();          ///< the communication menu opens: its closing entry follows the port
void Mnu_FermePortCom(); ///< closes a port that stayed open
