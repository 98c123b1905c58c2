#pragma once

#include "platform/base/Erreur.h"

// The operator's texts for failures. Each number of Erreur.h and ErreurPort.h has a text in the three languages.

/// The text of a failure, followed on lines of their own by the file, device or value and by the system's cause, where
/// these help. A number without a text gives only those lines. The system's own words never appear, since they may be
/// in another language: a cause without a text of ours appears as its number.
QString TexteErreur(const Erreur &erreur);

/// Same, but with these lines for a failure of the port as well: the device or the refused setting, and the cause.
QString TexteErreurDetaille(const Erreur &erreur);
