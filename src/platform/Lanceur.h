#pragma once

#include <QString>

/// Starts programme on fichier and does not wait for it. No shell stands between, so a path with blanks arrives whole.
/// Away from Windows, "write", "write.exe", "wordpad.exe" and "notepad.exe", with any folder, mean the system's own
/// program for that kind of file. Raises FichierIntrouvable when nothing could be started.
void LanceProgramme(const QString &programme, const QString &fichier);
