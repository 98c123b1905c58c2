#pragma once

#include "locale/Langue.h"
#include "platform/base/Erreur.h"

class VueTransfert;

// The steps that the ways of receiving a program share.

/// Clears the flags, shows the echo with genre, the way of receiving, if the configuration asks for it, opens the port
/// and says that the machine is awaited.
void DebuteReception(VueTransfert &vue, const Texte3 &genre);

/// The end has come: the machine is to get its end-of-transfer string back. Raises what the control raises.
void RendFinTransfert(VueTransfert &vue);

/// Gives that string its line time, unless the machine holds the line, and closes the port. Raises what the control
/// raises.
void AcheveReception(VueTransfert &vue);

/// The reception has failed, be it only in writing its file: tells the operator, closes the port, and offers to save
/// recu, what had come, elsewhere. FinTransfert is 0 from here on, so that another try follows.
void EchoueReception(const Erreur &erreur, VueTransfert &vue, const QString &recu);
