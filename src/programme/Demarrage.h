#pragma once

// The start and the end of the program.

/// The start-up: settings, language, default configuration, explorer, captions. The main window exists and is not shown
/// yet. A settings file that cannot be read leaves the window in its design state, without a message.
void Form_Load();

/// Tells the operator when the application folder takes no files. Behind the start-up, which passes over that so that
/// programs can be sent all the same.
void AnnonceDossierFerme();

/// The ordered end: offers to save a changed text, asks for confirmation and ends the process. A text that is still
/// unsaved then stands in "Sauvegardes".
void Mnu_Quitter();

/// The main window is being closed: offers to save a changed text, which is kept in "Sauvegardes" otherwise. The
/// closing cannot be refused.
void Form_Unload();
