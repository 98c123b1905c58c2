#include "platform/fichiers/FichierTenu.h"

#include "platform/fichiers/windows/CheminWindows.h"
#include "platform/fichiers/windows/OuvertureWindows.h"

#include <QFile>

namespace {

/// Locks one byte far behind the end of any file, so that other programs can still read and write the file. The system
/// releases the lock when the process ends.
bool Verrouille(HANDLE fichier)
{
    OVERLAPPED place{};
    place.OffsetHigh = 0x40000000;
    return LockFileEx(fichier, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
}

} // namespace

struct FichierTenu::Systeme
{
    Systeme(const QString &chemin, DWORD creation)
        : fichier(OuvreEntree(CheminSysteme(chemin), GENERIC_READ | GENERIC_WRITE, creation))
        , tenu(fichier && Verrouille(fichier.get()) && QFile::exists(chemin))
    {
    }

    const PoigneeWindows fichier;
    const bool tenu;
};

FichierTenu::FichierTenu(const QString &chemin, Absent absent)
    : m_systeme(std::make_unique<Systeme>(chemin, absent == Absent::Reste ? OPEN_EXISTING : OPEN_ALWAYS))
{
}

FichierTenu::~FichierTenu() = default;

bool FichierTenu::Tenu() const
{
    return m_systeme->tenu;
}

bool FichierTenu::SeRemplace()
{
    return false;
}
