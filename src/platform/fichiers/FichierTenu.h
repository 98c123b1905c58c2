#pragma once

#include <QFile>

/// Holds a file for as long as this process lives, or until the holder goes: another process can tell it from one that
/// a process which died has left. The hold stays with the file when it is renamed.
class FichierTenu
{
public:
    /// Holds the file at chemin, which is made, empty, where there is none. One that is held elsewhere, or cannot be
    /// opened, is not held; neither is any file where the file system has no such thing.
    explicit FichierTenu(const QString &chemin);

    bool Tenu() const { return m_tenu; }

private:
    QFile m_fichier;
    bool m_tenu;
};
