#pragma once

#include <QString>

// Folders of an installed program. Each system has its own unit for this.

/// The folder of this user's program data: $XDG_DATA_HOME, or AppData\Local on Windows.
QString DonneesUtilisateur();

/// True when the program in dossier must not keep data there: it was installed for all users of this PC, or the folder
/// is write-protected.
bool EstInstalle(const QString &dossier);
