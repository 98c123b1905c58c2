#pragma once

#include <QString>

/// Starts programme on fichier and does not wait for it. No shell stands between, so a path with blanks arrives whole.
/// A Windows program that does not exist here ("write", "write.exe", "wordpad.exe", "notepad.exe", with any folder) is
/// replaced by the system's own for that kind of file. Raises FichierIntrouvable when nothing could be started.
void LanceProgramme(const QString &programme, const QString &fichier);
