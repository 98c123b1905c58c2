#pragma once

#include <QStringList>

class QWidget;

/// Layout defects of a window, one line each with the names of the controls: controls too small for their text, outside
/// their frame or over another one; Alt shortcuts used twice; steps of the Tab key that go backwards; controls without
/// a name for an assistive program. fenetre: a window that is on the screen.
QStringList Defauts(const QWidget &fenetre);
