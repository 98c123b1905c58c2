#pragma once

#include <QIcon>

/// The icon drawn in the SVG file or resource chemin. The file is read and parsed when the icon is first painted, which
/// makes the start of the program quicker. The icon is sharp at every size and pixel density, and the style greys it
/// out for a disabled command. A file without a drawing gives empty pictures.
QIcon Icone(const QString &chemin);
