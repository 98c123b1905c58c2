#pragma once

#include <QString>

// Paths. The folder separator is the platform's: "\" on Windows, "/" elsewhere.

/// The application folder, which holds the settings and the samples. It is the folder of the program file. When that
/// cannot be written or lies below /usr or Program Files (an installed program), it is the folder Dorvanel in the
/// user's data folder, and gets a copy of the samples on the first start. It stays the same for the whole run.
QString DossierApplication();

/// Makes dossier the application folder, for a test. "" goes back to the ordinary one.
void FixeDossierApplication(const QString &dossier);

/// chemin with a separator at its end; one that is there already is not doubled.
QString AjouteAntislash(const QString &chemin);

/// The part of chemin behind the last separator, or the whole when there is none.
QString NomSeul(const QString &chemin);

/// chemin as an absolute path. A relative one, which settings and configurations may hold, counts from the application
/// folder.
QString DepuisDossierApplication(const QString &chemin);

/// chemin in upper case, if the file system takes that for the same folder; otherwise chemin as it is.
QString EnMajuscules(const QString &chemin);
