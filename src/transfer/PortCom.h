#pragma once

#include "platform/base/Erreur.h"

class MSComm;
class VueTransfert;

// The session on the serial port: a transfer opens it with the settings of ParamCom, runs, and closes it.

/// The serial control of the main window.
MSComm &Controle();

/// Gives the control the settings of ParamCom and opens the port if it is closed. A failure is told to the operator and
/// leaves the steps behind it undone; the routine that follows meets the closed port at its first operation.
void OuvrePortCOM();

/// Closes the port if it is open. A failure is told to the operator and has its cancelling button read "Close".
void FermePortCOM(VueTransfert &vue);

/// The end of a transfer routine that failed: tells the operator and closes the port.
void ErreurPortCOM(const Erreur &erreur, VueTransfert &vue);

/// The operator's cancel: if the port is open, closes it and says so as the status. A failure is not told.
void CoupePortCOM(VueTransfert &vue);

void Mnu_Com();          ///< the communication menu opens: its closing entry follows the port
void Mnu_FermePortCom(); ///< closes a port that stayed open
