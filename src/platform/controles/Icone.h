#pragma once

#include <QIcon>

/// The icon drawn in an SVG file or resource. The file is read and understood when the icon is first painted, once for
/// all sizes and states: an icon that nobody sees costs nothing, which the start of the program feels. Sharp at every
/// size and pixel density; the style greys it out where the command is disabled. A file that holds no drawing gives
/// empty pictures.
QIcon Icone(const QString &chemin);
