#include "platform/fichiers/FichierTenu.h"

#include "platform/fichiers/windows/CheminWindows.h"

#include <QFile>

#include <windows.h>

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
        : fichier(CreateFileW(CheminSysteme(chemin).c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, creation,
                              FILE_ATTRIBUTE_NORMAL, nullptr))
        , tenu(fichier != INVALID_HANDLE_VALUE && Verrouille(fichier) && QFile::exists(chemin))
    {
    }
    ~Systeme()
    {
        if (fichier != INVALID_HANDLE_VALUE)
            CloseHandle(fichier);
    }
    Q_DISABLE_COPY_MOVE(Systeme)

    const HANDLE fichier;
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
