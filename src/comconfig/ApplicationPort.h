#pragma once

#include "platform/base/Erreur.h"

// What Apply of the properties dialog does to the serial control. A step that fails does not stop the next one: it
// stays pending, and is told where the road ends.

/// Gives the control the port number, the line settings and the flow control of ParamCom. A port that is open on
/// another number is closed, moved and opened again; if that fails, or a failure was pending already, the control goes
/// back to its old number and stays closed. The road ends at the first group of steps that leaves a failure pending.
void AppliqueAuPort(ErreurEnAttente &enAttente);

/// Gives it all of ParamCom but the port number, and with that the line settings and the flow control once more. What
/// it refuses, as an open port does with the sizes of its buffers, is passed over.
void AppliqueResteAuPort();
