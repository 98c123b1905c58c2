#pragma once

#include <QString>

#include <functional>

class Erreur;

// The folder "Sauvegardes" of the application folder. It keeps texts that have left the pane unsaved, and copies of
// files made before something else was written over them. Their names are "<name>_<yyyy-MM-dd_HHmmss><ending>", and the
// operator finds them in any file dialog.

/// Full path of the folder, without a final separator. The folder exists once something has been kept.
QString DossierSauvegardes();

/// True for a path in this folder. No program should be saved here: old files are removed.
bool EstGarde(const QString &chemin);

/// The name of the file at chemin without its folder. For a file of this folder also without the date.
QString NomDOrigine(const QString &chemin);

/// The name under which a text of the program nom is kept, before the date is added. The pane's text is plain, so a
/// name with the ending of a rich text gets another ending: the pane would refuse to open it as rich text. nom: path or
/// name, or "".
QString NomPourTexte(const QString &nom);

/// Keeps texte, the text of the pane without anything added, and gives its path. nom: path or name of the program, ""
/// for one without a name. The result is "" when it could not be written; EcouteSauvegardes() is then told.
QString GardeTexte(const QString &nom, const QString &texte);

/// Keeps a copy of the file at chemin. The result is as for GardeTexte(). A missing or empty file is not kept.
QString GardeCopie(const QString &chemin);

/// Renames the file at chemin, which lies in this folder already, as a kept text of the program nom, dated by its last
/// change. Gives the new path, or chemin when it could not be renamed.
QString GardeTelQuel(const QString &chemin, const QString &nom);

/// echec is called with each failure to keep something.
void EcouteSauvegardes(std::function<void(const Erreur &)> echec);

/// Reports a failure to the function given to EcouteSauvegardes(). For other units that write into this folder.
void DitEchecSauvegarde(const Erreur &cause);
