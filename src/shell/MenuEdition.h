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

void Mnu_Edition();   ///< enables the entries by clipboard and selection, as the menu opens
void Mnu_Annuler();   ///< restores the text, and the look, as before the last of these commands or of Mnu_Police
void Mnu_Couper();    ///< moves the selection to the clipboard
void Mnu_Copier();    ///< copies the selection to the clipboard
void Mnu_Coller();    ///< replaces the selection by the text of the clipboard
void Mnu_Supprimer(); ///< deletes the selection
