#pragma once

#include <QString>

#include <memory>

/// A lock on a file, until this object is destroyed or the process ends. So another process can tell a file in use from
/// one that a crashed process left behind. The lock stays on the file when it is renamed. Each system has its own unit
/// for this class.
class FichierTenu
{
public:
    enum class Absent { Reste, EstCree };

    /// Tries to lock the file at chemin. It does not succeed when another process has the lock, when the file cannot be
    /// opened or is removed meanwhile, or when the file system has no locks.
    /// absent: whether a missing file is created, empty.
    explicit FichierTenu(const QString &chemin, Absent absent = Absent::Reste);
    ~FichierTenu();
    Q_DISABLE_COPY_MOVE(FichierTenu)

    bool Tenu() const;

    /// False when the system cannot replace a locked file by renaming another one.
    static bool SeRemplace();

private:
    struct Systeme;
    const std::unique_ptr<Systeme> m_systeme;
};
