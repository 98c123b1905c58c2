#pragma once

#include <QIcon>

/// The icon whose pictures lie in the resource folder chemin, one file HEIGHT.png for each height in pixels. A picture
/// is read when it is first painted, which makes the start of the program quicker. For a height between two pictures
/// the larger one is scaled down. The style greys the icon out for a disabled command. A folder without pictures gives
/// an empty icon.
QIcon Icone(const QString &chemin);
