#pragma once

#include "locale/Langue.h"
#include "platform/base/Erreur.h"

namespace Ui {
class Em_Rc;
}

// The steps that the ways of receiving a program share.

/// Clears the flags, shows the echo labels if the configuration asks for them, with genre in Label4, opens the port and
/// says that the machine is awaited.
void DebuteReception(Ui::Em_Rc &dialogue, const Texte3 &genre);

/// The end has come: the machine is to get its end-of-transfer string back. Raises what the control raises.
void RendFinTransfert(Ui::Em_Rc &dialogue);

/// Gives that string its line time, unless the machine holds the line, and closes the port. Raises what the control
/// raises.
void AcheveReception(Ui::Em_Rc &dialogue);

/// The reception has failed, be it only in writing its file: tells the operator, closes the port, and offers to save
/// recu, what had come, elsewhere. FinTransfert is 0 from here on, so that another try follows.
void EchoueReception(const Erreur &erreur, Ui::Em_Rc &dialogue, const QString &recu);
