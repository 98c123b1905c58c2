#pragma once

#include "platform/base/Erreur.h"

// What "Apply" of the properties dialog does to the serial control.

/// Sets port number, line settings and flow control of the control from ParamCom, in this order; after each of the
/// three it stops if a failure is pending. A port open under another number is closed, changed and opened again. When
/// that fails, or when a failure was pending before, the control returns to its old number and stays closed. enAttente:
/// the first failure, which the caller tells.
void AppliqueAuPort(ErreurEnAttente &enAttente);

/// Sets everything else of the control from ParamCom, and line settings and flow control once more. What the control
/// refuses is passed over: an open port, for example, refuses new sizes of its buffers.
void AppliqueResteAuPort();
