#pragma once

#include <QStringList>

class QWidget;

/// What an operator would stumble over in a window: controls that are too small for their words, out of their frame or
/// over another one; letters that call two controls; steps of the tabulator that go back; controls that say nothing to
/// whoever hears the window instead of seeing it. One line for each, with the names of the controls. fenetre: a window
/// that is on the screen.
QStringList Defauts(const QWidget &fenetre);
