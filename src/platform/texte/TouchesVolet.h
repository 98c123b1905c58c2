#pragma once

#include <QKeyEvent>

// What a key means to the text pane.

/// Ctrl with a letter is a shortcut of the menu, except for those of the pane: all, cut, paste, redo, undo. Alt with a
/// character is one too, whether a menu bears that letter or not: left to itself the toolkit would type it.
bool EstRaccourciDuMenu(const QKeyEvent &touche);
