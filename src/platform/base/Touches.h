#pragma once

#include <QKeyEvent>

// What a key means, whichever window it goes to.

/// Ctrl or Alt alone. AltGr, which types characters, comes as both on some systems.
bool EstAvec(const QKeyEvent &touche, Qt::KeyboardModifier seul);

/// Enter, of whichever half of the keyboard, with or without Shift.
bool EstEntree(const QKeyEvent &touche);

/// A key that puts a character into the text or takes one out.
bool DonneUnCaractere(const QKeyEvent &touche);
