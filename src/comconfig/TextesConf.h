#pragma once

#include "locale/Langue.h"

// Texts shared by the commands of the configuration and the properties dialog.

/// Filter of the file dialogs for .par files.
inline constexpr Texte3 FiltrePar{u"Fichiers paramètres (*.par)|*.Par", u"Files parameters (*.par)|*.Par",
                                  u"Ficheros parámetros (*.par)|*.Par"};
