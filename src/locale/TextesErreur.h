#pragma once

#include "platform/Erreur.h"

// What the operator reads of a failure. Each number of Erreur.h and ErreurPort.h has a text in the three languages.

/// The text of a failure. Where the platform's own words name the file, the device or the cause, they stand on a line
/// below; a number without a text of ours bears those words alone.
QString TexteErreur(const Erreur &erreur);

/// Same, and for a failure of the port too the platform's words stand below: the device, or the setting refused.
QString TexteErreurDetaille(const Erreur &erreur);
