#pragma once

#include "platform/base/Erreur.h"

#include <QString>

class MSComm;
class QLabel;
class QPushButton;
namespace Ui {
class Em_Rc;
}

// The session on the serial port: a transfer opens it with the settings of ParamCom, runs, and closes it.

/// The serial control of the main window.
MSComm &Controle();

/// Gives the control the settings of ParamCom and opens the port if it is closed. A failure is told to the operator and
/// leaves the steps behind it undone; the routine that follows meets the closed port at its first operation.
void OuvrePortCOM();

/// Closes the port if it is open. A failure is told to the operator and turns Command1 of the dialog into "Close".
void FermePortCOM(Ui::Em_Rc &dialogue);

/// The end of a transfer routine that failed: tells the operator and closes the port.
void ErreurPortCOM(const Erreur &erreur, Ui::Em_Rc &dialogue);

/// The operator's cancel: if the port is open, closes it and says so in Label2 of the dialog. Nothing is told of a
/// failure.
void CoupePortCOM(Ui::Em_Rc &dialogue);

/// The cancel button of a transfer that is over reads "Close" from now on.
void BoutonFermer(QPushButton &bouton);

/// Label3 and Label4 of the dialog are shown if the configuration asks for the echo.
void MontreLabelsEcho(Ui::Em_Rc &dialogue);

/// Shows texte in one of them, with the names of its control characters: of a long one the beginning, beyond which the
/// label has no room.
void EcritEcho(QLabel &label, const QString &texte);

void Mnu_Com();          ///< the communication menu opens: its closing entry follows the port
void Mnu_FermePortCom(); ///< closes a port that stayed open
