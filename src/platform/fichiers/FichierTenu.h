#pragma once

#include <QFile>

/// A lock on a file, until this object is destroyed or the process ends. So another process can tell a file in use from
/// one that a crashed process left behind. The lock stays on the file when it is renamed.
class FichierTenu
{
public:
    enum class Absent { Reste, EstCree };

    /// Tries to lock the file at chemin. It does not succeed when another process has the lock, when the file cannot be
    /// opened or is removed meanwhile, or when the file system has no locks.
    /// absent: whether a missing file is created, empty.
    explicit FichierTenu(const QString &chemin, Absent absent = Absent::Reste);

    bool Tenu() const { return m_tenu; }

private:
    QFile m_fichier;
    bool m_tenu;
};
