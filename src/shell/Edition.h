#pragma once

// The edit menu: it works on the selection of Text1 and the clipboard, with one level of undo that restores the whole
// text.

/// Ties the right mouse button of the pane to the edit menu. Once, when the main window exists.
void BrancheEdition();

void Mnu_Edition(); ///< the menu opens: its entries are enabled by the clipboard and the selection
void Mnu_Annuler();
void Mnu_Couper();
void Mnu_Copier();
void Mnu_Coller();
void Mnu_Supprimer();
