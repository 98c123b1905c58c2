#pragma once

#include "platform/base/Erreur.h"

// What the operator reads of a failure. Each number of Erreur.h and ErreurPort.h has a text in the three languages.

/// The text of a failure. Below it stand, where they say more, the file, device or value and the system's cause; a
/// number without a text of ours bears these alone. No word of the system's own reaches the operator, whose language it
/// may not be: a cause without a text of ours is told by its number.
QString TexteErreur(const Erreur &erreur);

/// Same, and for a failure of the port too these stand below: the device or the setting refused, and the cause.
QString TexteErreurDetaille(const Erreur &erreur);
