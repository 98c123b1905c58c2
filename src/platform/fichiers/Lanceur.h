#pragma once

#include <QString>

/// Starts commande on fichier and does not wait for it. commande: a program, with arguments behind it if there are any;
/// the program's path may have blanks in it, as may the file's: no shell stands between. Away from Windows, "write",
/// "write.exe", "wordpad.exe" and "notepad.exe", with any folder, mean the system's own program for that kind of file.
/// Raises FichierIntrouvable when nothing could be started.
void LanceProgramme(const QString &commande, const QString &fichier);
