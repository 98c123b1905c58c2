#pragma once

#include <QKeyEvent>

// The meaning of keys in the text pane.

/// True for a shortcut of the menu. Ctrl with a letter is one, except those of the pane: select all, paste, cut, redo,
/// undo. Alt with a character is one too, even if no menu has that letter, because Qt would type the character.
bool EstRaccourciDuMenu(const QKeyEvent &touche);
