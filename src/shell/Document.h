#pragma once

#include "donnees/EtatDocument.h"

#include <QString>

class Erreur;

// The one CN program that the main window holds: the text stands in Text1 and nowhere else; here stand the file it came
// from, whether it has changed, and the commands that create, open and save it.

/// Ties the pane's events to the document. Once, when the main window exists.
void BrancheDocument();

/// True when the pane holds a text that has changed and was not saved.
bool TexteModifie();

/// Puts the program's name, its version and nom in the title of the main window.
void TitreFenetre(const QString &nom);

/// What the operator is told of a file that could not be written, with the cause.
QString TexteNonEnregistre(const Erreur &erreur);

/// Writes the text of the pane and one CR LF to path, then shows the document's names. When that fails it says so to
/// the operator and raises the failure on; the document then stays as it was, and so does the file where the disk has
/// no room (see EcritFichierTexte()).
void SaveFile(const QString &path);

/// Saves the text under the document's own name, after a question that is no dialog of names: the file that stands
/// there is kept in "Sauvegardes" first. A text that came from that folder has no name of its own: the operator is
/// asked for one. False when the document has no name or none is given, or when it failed, of which he was told.
bool EnregistreSurPlace();

/// Loads path into the pane, as rich text when it ends in "RTF", makes it the document and enables what works on a
/// file. Raises what the pane raises, with pane and document as they were.
void OpenFile(const QString &path);

/// Makes chemin the document. When it cannot be read the operator is told and may open it with the word processor; the
/// former document stays.
void OuvreDocument(const QString &chemin);

/// OuvreDocument() for a file that comes without a command: a changed text is offered to be saved first, and stays
/// where that fails. A file let go over the window by mistake must not be what loses it.
void OuvreDepose(const QString &chemin);

void Mnu_Nouveau();
void Mnu_Ouvrir();
void Mnu_EnregistrerSous();
