#pragma once

#include "donnees/EtatDocument.h"

#include <QString>

class Erreur;

// The CN program in the main window, and the commands that create, open and save it. Its text stands in Text1 and
// nowhere else; its file and whether it has changed stand in Document.

/// Connects the pane's events with the document. Once, when the main window exists.
void BrancheDocument();

/// True when the text of the pane has changed since it was loaded or saved, and is not empty.
bool TexteModifie();

/// The name of a new program, without a folder.
QString NomNouveauDocument();

/// Asks the operator whether to save a changed text, and saves it under the document's own name, or a new one where it
/// has none. False when he wanted that and it was not done; he has been told of a failure.
bool ProposeEnregistrement();

/// Sets the title of the main window: the program's name, its version and nom.
void TitreFenetre(const QString &nom);

/// The message for a file that could not be written, with the cause.
QString TexteNonEnregistre(const Erreur &erreur);

/// Writes the text of the pane followed by one CR LF to path, and shows the document's names. A failure is told to the
/// operator and raised again; the document then stays as it was, and so does the file when the disk is full (see
/// EcritFichierTexte()).
void SaveFile(const QString &path);

/// Saves the text into the document's own file, without a dialog; the former content is kept in "Sauvegardes" first.
/// For a text opened from that folder the operator is asked for a name. False when the document has no name, when he
/// gives none, or when saving failed, which he has been told.
bool EnregistreSurPlace();

/// Loads path into the pane, as rich text when it ends in "RTF", makes it the document and enables the commands that
/// need a file. Raises what RichTextBox::LoadFile() raises; pane and document then stay as they were.
void OpenFile(const QString &path);

/// Makes chemin the document. When it cannot be read the operator is told so and may open it with the word processor;
/// the former document stays.
void OuvreDocument(const QString &chemin);

/// Same, for a file that was dropped or named on the command line: a drop may be a mistake, so a changed text is first
/// offered to be saved, and when that fails the former document stays.
void OuvreDepose(const QString &chemin);

// The commands of the menu: open a file, save under a name.
void Mnu_Ouvrir();
void Mnu_EnregistrerSous();
