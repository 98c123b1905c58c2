#pragma once

#include <QString>

#include <functional>

class Erreur;

// The folder "Sauvegardes" of the application folder. In it stand the texts that have left the pane unsaved, and files
// as they were before something else was written over them, each as "<name>_<yyyy-MM-dd_HHmmss><ending>". What is
// kept here is found again by the operator in an ordinary file dialog.

QString DossierSauvegardes();

/// True for a path in this folder. What lies here goes one day: it is no place to save a program in.
bool EstGarde(const QString &chemin);

/// The name alone of what lies at chemin; without the date when that is this folder.
QString NomDOrigine(const QString &chemin);

/// The name under which a text of the program nom is kept, before its date. A text of the pane is plain: under the
/// ending of a rich one the pane would refuse it, so that another ending follows. nom: path or name, or "".
QString NomPourTexte(const QString &nom);

/// Keeps texte, the bytes of the pane and nothing more, and gives the path. nom: path or name of the program, "" for
/// one without a name. "" when it could not be written, of which EcouteSauvegardes() tells.
QString GardeTexte(const QString &nom, const QString &texte);

/// Keeps a copy of the file at chemin, as GardeTexte(). A file that is missing or empty is nothing to keep.
QString GardeCopie(const QString &chemin);

/// Gives the file at chemin, which stands in this folder already, its place among what is kept: the text of the program
/// nom as it was last written. The new path, or chemin itself when it could not be renamed.
QString GardeTelQuel(const QString &chemin, const QString &nom);

/// echec hears of each thing that could not be kept.
void EcouteSauvegardes(std::function<void(const Erreur &)> echec);

/// For what writes here beside the functions above: tells of a failure.
void DitEchecSauvegarde(const Erreur &cause);
