#pragma once

#include <QString>

/// Opens a file that the desktop hands over, dropped on the window or named at the start, as the command for its kind
/// does once the operator has chosen it there: a .par file becomes the current configuration, a .mac file opens in its
/// dialog, anything else is the program in the pane, which is asked about first where it has changed. chemin: full
/// path.
void OuvreFichier(const QString &chemin);
