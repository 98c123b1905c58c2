#pragma once

#include "locale/Langue.h"
#include "platform/base/Erreur.h"

class VueTransfert;

// The steps that the ways of receiving a program share.

/// Clears the flags, opens the port and says that the machine is awaited. If the configuration asks for the echo, it
/// shows genre, the way of receiving.
void DebuteReception(VueTransfert &vue, const Texte3 &genre);

/// What the machine has sent and the reception has not read yet, less an end of transfer at its end. It is only looked
/// at, and is there until the port closes.
QString ResteRecu();

/// The end was received: sends the machine its end-of-transfer string. Raises what the control raises.
void RendFinTransfert(VueTransfert &vue);

/// Waits until that string has left, unless the machine holds the line, and closes the port. Raises what the control
/// raises.
void AcheveReception(VueTransfert &vue);

/// The reception has failed, perhaps only in writing its file: tells the operator, closes the port, and offers to save
/// recu elsewhere. FinTransfert becomes false, so that Rc_Fic stays open for another try. recu: what was received.
void EchoueReception(const Erreur &erreur, VueTransfert &vue, const QString &recu);
