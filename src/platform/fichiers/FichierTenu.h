#pragma once

#include <QFile>

/// Holds a file for as long as this process lives, or until the holder goes: another process can tell it from one that
/// a process which died has left. The hold stays with the file when it is renamed.
class FichierTenu
{
public:
    enum class Absent { Reste, EstCree };

    /// Holds the file at chemin; absent: whether one that is missing is made, empty. One that is held elsewhere, or
    /// cannot be opened, is not held, nor is one that was taken away from chemin meanwhile; neither is any file where
    /// the file system has no such thing.
    explicit FichierTenu(const QString &chemin, Absent absent = Absent::Reste);

    bool Tenu() const { return m_tenu; }

private:
    QFile m_fichier;
    bool m_tenu;
};
