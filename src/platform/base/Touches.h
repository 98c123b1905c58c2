#pragma once

#include <QKeyEvent>

// What a key means, whichever window it goes to.

/// True when the key is pressed with the modifier seul (Ctrl or Alt) and not with the other one. Some systems report
/// AltGr, which types characters, as Ctrl and Alt together.
bool EstAvec(const QKeyEvent &touche, Qt::KeyboardModifier seul);

/// True for Enter, of the main keyboard or the keypad, with or without Shift.
bool EstEntree(const QKeyEvent &touche);

/// True for a key that inserts or deletes a character.
bool DonneUnCaractere(const QKeyEvent &touche);
