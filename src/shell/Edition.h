#pragma once

#include <functional>

// The edit menu: it works on the selection of Text1 and the clipboard, with one level of undo that restores the whole
// text. What is kept for it belongs to the program in the pane, and goes with it.

/// Ties the pane to the edit menu: its right mouse button, and the text that gives way to another. Once, when the main
/// window exists.
void BrancheEdition();

/// A command is about to change the text or its look: keeps the text for Mnu_Annuler.
void RetientPourAnnuler();

/// The command changes the look: reprend gives the pane the former one back, behind the text.
void RetientAspect(std::function<void()> reprend);

void Mnu_Edition(); ///< the menu opens: its entries are enabled by the clipboard and the selection
void Mnu_Annuler();
void Mnu_Couper();
void Mnu_Copier();
void Mnu_Coller();
void Mnu_Supprimer();
