#pragma once

#include <QString>

/// Opens a file that was dropped on the window or named on the command line, in the same way as the menu command for
/// its kind. A .par file becomes the current configuration, a .mac file opens in its dialog, anything else is loaded
/// into the pane, where a changed text is first offered to be saved. chemin: full path.
void OuvreFichier(const QString &chemin);
