#pragma once

#include <QString>

/// Starts commande on fichier and does not wait for it. On systems other than Windows, "write", "write.exe",
/// "wordpad.exe" and "notepad.exe", in any folder, stand for the system's own program for that kind of file. On a
/// Windows without WordPad, the first three stand for its text editor.
/// commande: a program, with its arguments if any. fichier: a path. Both paths may contain blanks; no shell is
/// involved.
/// Raises FichierIntrouvable when nothing could be started.
void LanceProgramme(const QString &commande, const QString &fichier);

/// True when a program's file name needs no extension.
bool ProgrammesSansExtension();
