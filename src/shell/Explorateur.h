#pragma once

// The explorer column of the main window: the tree of folders FolderTreeview1, the files File1 of its selected folder
// that pass the filter Combo1, and the buttons that create (Command1), delete (Command2) and rename (Command4) a folder
// and close the column (Command3).

/// Ties the controls of the column to its commands. Once, when the main window exists.
void BrancheExplorateur();

/// Opens the explorer column, or closes it when it is open; the menu entry and button 15 follow. It opens on DosDefaut.
void Mnu_AffichDOS();

/// Shows the files of the selected folder, read anew; where that cannot be listed, the files shown stay.
void FolderTreeview1_Click();
