#include "platform/fichiers/FichierDisque.h"

#include "platform/base/Erreur.h"
#include "platform/base/windows/CauseWindows.h"
#include "platform/fichiers/windows/CheminWindows.h"
#include "platform/fichiers/windows/OuvertureWindows.h"

#include <QScopeGuard>

#include <algorithm>

namespace {

constexpr qsizetype Morceau = qsizetype{16} * 1024 * 1024; // most that one call reads or writes, in bytes

[[noreturn]] void Echoue(DWORD cause = GetLastError())
{
    throw ErreurDeFichier(static_cast<int>(cause));
}

struct ModeOuverture
{
    DWORD acces;
    DWORD creation;
};

ModeOuverture Mode(FichierDisque::Usage usage)
{
    switch (usage) {
    case FichierDisque::Usage::Lit:
        return {GENERIC_READ, OPEN_EXISTING};
    case FichierDisque::Usage::Ecrit:
        return {GENERIC_WRITE, OPEN_ALWAYS};
    case FichierDisque::Usage::Ajoute:
        return {GENERIC_WRITE, OPEN_EXISTING};
    case FichierDisque::Usage::Cree:
        return {GENERIC_WRITE, CREATE_NEW};
    }
    return {0, 0};
}

/// Windows reports a folder opened as a file as a lack of rights. Here it gets its own cause.
DWORD CauseOuverture(const std::wstring &chemin)
{
    const DWORD cause = GetLastError();
    const DWORD attributs = cause == ERROR_ACCESS_DENIED ? GetFileAttributesW(chemin.c_str()) : INVALID_FILE_ATTRIBUTES;
    const bool dossier = attributs != INVALID_FILE_ATTRIBUTES && (attributs & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return dossier ? ErreurDossier : cause;
}

} // namespace

struct FichierDisque::Systeme
{
    void Ecrit(const QByteArray &octets) const;

    PoigneeWindows fichier;
};

FichierDisque::FichierDisque(const QString &chemin, Usage usage)
    : m_systeme(std::make_unique<Systeme>())
{
    if (!NomPossible(chemin))
        Echoue(ERROR_INVALID_NAME);
    const std::wstring entier = CheminSysteme(chemin);
    const ModeOuverture mode = Mode(usage);
    PoigneeWindows &fichier = m_systeme->fichier;
    fichier = OuvreEntree(entier, mode.acces, mode.creation);
    if (!fichier)
        Echoue(CauseOuverture(entier));
    if (usage == Usage::Ecrit && SetEndOfFile(fichier.get()) == 0)
        Echoue();
    if (usage == Usage::Ajoute && SetFilePointerEx(fichier.get(), {}, nullptr, FILE_END) == 0)
        Echoue();
}

FichierDisque::~FichierDisque() = default;

qint64 FichierDisque::Taille() const
{
    LARGE_INTEGER taille{};
    return GetFileSizeEx(m_systeme->fichier.get(), &taille) != 0 ? taille.QuadPart : 0;
}

QByteArray FichierDisque::LitTout()
{
    QByteArray octets;
    octets.reserve(Taille());
    for (DWORD lus = 1; lus != 0;) {
        const qsizetype avant = octets.size();
        octets.resize(avant + std::min<qsizetype>(Morceau, std::max<qsizetype>(Taille() - avant, 1)));
        if (ReadFile(m_systeme->fichier.get(), octets.data() + avant, static_cast<DWORD>(octets.size() - avant), &lus,
                     nullptr) == 0)
            Echoue();
        octets.truncate(avant + static_cast<qsizetype>(lus));
    }
    return octets;
}

void FichierDisque::EcritEtFerme(const QByteArray &octets)
{
    const auto fermeture = qScopeGuard([this] { m_systeme->fichier.reset(); });
    m_systeme->Ecrit(octets);
    // The system buffers what is written. Only here does it report that a USB stick was pulled out meanwhile.
    if (FlushFileBuffers(m_systeme->fichier.get()) == 0)
        Echoue();
}

void FichierDisque::Systeme::Ecrit(const QByteArray &octets) const
{
    for (qsizetype ecrits = 0; ecrits < octets.size();) {
        const qsizetype nombre = std::min(Morceau, octets.size() - ecrits);
        DWORD pris = 0;
        if (WriteFile(fichier.get(), octets.data() + ecrits, static_cast<DWORD>(nombre), &pris, nullptr) == 0)
            Echoue();
        if (pris == 0)
            Echoue(ERROR_DISK_FULL);
        ecrits += static_cast<qsizetype>(pris);
    }
}

/// Reserves the room behind the end of the file, where the writing then finds it. What stays unused is freed when the
/// file is closed.
void ExigePlace(const QString &chemin, qint64 taille)
{
    const PoigneeWindows fichier = OuvreEntree(CheminSysteme(chemin), GENERIC_WRITE, OPEN_EXISTING);
    if (!fichier)
        return;
    LARGE_INTEGER presente{};
    if (GetFileSizeEx(fichier.get(), &presente) == 0 || presente.QuadPart == 0 || taille <= presente.QuadPart)
        return;
    FILE_ALLOCATION_INFO place{};
    place.AllocationSize.QuadPart = taille;
    if (SetFileInformationByHandle(fichier.get(), FileAllocationInfo, &place, sizeof place) != 0)
        return;
    const DWORD cause = GetLastError();
    if (cause == ERROR_DISK_FULL || cause == ErreurQuota || cause == ERROR_FILE_TOO_LARGE)
        Echoue(cause);
}

void RemplaceFichier(const QString &ancien, const QString &nouveau)
{
    if (MoveFileExW(CheminSysteme(ancien).c_str(), CheminSysteme(nouveau).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0)
        Echoue();
}
