#pragma once

#include <functional>

// The edit menu. Its commands work on the selection of Text1 and on the clipboard. There is one level of undo, which
// restores the whole text; loading another program clears it.

/// Connects the pane with the edit menu: its right mouse button opens the menu, and loading another text clears the
/// undo. Once, when the main window exists.
void BrancheEdition();

/// Keeps the text for Mnu_Annuler. To be called by a command before it changes the text or its look.
void RetientPourAnnuler();

/// Same, when the look changes: reprend restores the former look, after the text has been restored.
void RetientAspect(std::function<void()> reprend);

void Mnu_Edition(); ///< enables the entries by clipboard and selection, as the menu opens
void Mnu_Annuler();
void Mnu_Couper();
void Mnu_Copier();
void Mnu_Coller();
void Mnu_Supprimer();
