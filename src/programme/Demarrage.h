#pragma once

// The start and the end of the program.

/// The start-up: settings, language, default configuration, explorer column, captions. The main window exists and is
/// not shown yet. When the settings file cannot be read, the start ends here without a message, and the window keeps
/// its design state.
void Form_Load();

/// Tells the operator when nothing can be written in the application folder. After the start-up, which goes on in that
/// case: programs can still be sent.
void AnnonceDossierFerme();

/// The command that ends the program: offers to save a changed text, asks for confirmation and ends the process. A text
/// that is still unsaved is kept in "Sauvegardes".
void Mnu_Quitter();

/// The main window is closing, which cannot be refused: offers to save a changed text, and keeps it in "Sauvegardes" if
/// it stays unsaved.
void Form_Unload();
