#pragma once

#include <QString>

// Paths. The folder separator is the platform's: "\" on Windows, "/" elsewhere.

/// The folder that holds the settings and the samples: the folder of the program file or, where that cannot be written
/// or lies below /usr or Program Files (an installed program), the folder Dorvanel in the user's own data, which gets a
/// copy of the samples on the first start. Which of the two it is stays the same for the whole run.
QString DossierApplication();

/// Puts another folder in its place; a test gives itself one. "" goes back to the ordinary one.
void FixeDossierApplication(const QString &dossier);

/// chemin with a final separator, added only when there is none.
QString AjouteAntislash(const QString &chemin);

/// What follows the last separator; the whole of chemin when there is none.
QString NomSeul(const QString &chemin);

/// chemin in full. A settings or configuration file may name a folder beside the program, wherever that has been laid.
QString DepuisDossierApplication(const QString &chemin);

/// chemin in upper case where the file system takes that for the same folder, else as it stands: on a file system that
/// tells case apart the upper-case form names nothing.
QString EnMajuscules(const QString &chemin);
