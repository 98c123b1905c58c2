#include "platform/fichiers/Dossiers.h"

#include "platform/base/Erreur.h"
#include "platform/base/Journal.h"
#include "platform/base/windows/CauseWindows.h"
#include "platform/fichiers/windows/CheminWindows.h"
#include "platform/fichiers/windows/OuvertureWindows.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#include <vector>

// The C++ library of this compiler does not recognise links on Windows; a deletion would follow them. So each entry is
// asked from the system itself.

namespace {

constexpr std::size_t LongueurChemin = 32768; // the longest path that the system has

struct Entree
{
    std::wstring chemin;
    DWORD attributs = 0;
    DWORD marque = 0; ///< kind of the reparse point; 0 for any other entry, or when the system does not tell

    bool Est(DWORD attribut) const { return (attributs & attribut) != 0; }
    /// True for a junction or a symbolic link. Folders of a cloud service are reparse points too, but no links. A
    /// reparse point of unknown kind counts as a link, so that it is never entered.
    bool Mene() const
    {
        return Est(FILE_ATTRIBUTE_REPARSE_POINT) && (marque == 0 || IsReparseTagNameSurrogate(marque));
    }
    bool EstDossier() const { return Est(FILE_ATTRIBUTE_DIRECTORY) && !Mene(); }
};

[[noreturn]] void Echoue(const std::wstring &chemin, DWORD cause = GetLastError())
{
    QString nom = QString::fromStdWString(chemin);
    if (nom.startsWith(QLatin1String(R"(\\?\UNC\)")))
        nom = u'\\' + nom.mid(7);
    else if (nom.startsWith(QLatin1String(R"(\\?\)")))
        nom.remove(0, 4);
    throw ErreurDeFichier(static_cast<int>(cause), nom);
}

void ExigeNom(const QString &chemin)
{
    if (!NomPossible(chemin))
        Echoue(CheminSysteme(chemin), ERROR_INVALID_NAME);
}

Entree EntreeDe(const std::wstring &chemin, const WIN32_FIND_DATAW &trouve)
{
    const bool marquee = (trouve.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return {chemin, trouve.dwFileAttributes, marquee ? trouve.dwReserved0 : 0};
}

/// The entry at chemin itself, not the target of a link.
Entree Regarde(const std::wstring &chemin)
{
    WIN32_FIND_DATAW trouve{};
    const HANDLE recherche = FindFirstFileW(chemin.c_str(), &trouve);
    if (recherche == INVALID_HANDLE_VALUE)
        Echoue(chemin);
    FindClose(recherche);
    return EntreeDe(chemin, trouve);
}

/// The entries of a folder. The listing is complete before anything is deleted, since on some file systems a deletion
/// upsets a listing under way.
std::vector<Entree> Entrees(const std::wstring &dossier)
{
    std::vector<Entree> entrees;
    WIN32_FIND_DATAW trouve{};
    const HANDLE recherche = FindFirstFileW((dossier + L"\\*").c_str(), &trouve);
    if (recherche == INVALID_HANDLE_VALUE)
        Echoue(dossier);
    const auto fin = qScopeGuard([recherche] { FindClose(recherche); });
    do {
        const std::wstring nom = trouve.cFileName;
        if (nom != L"." && nom != L"..")
            entrees.push_back(EntreeDe(dossier + L'\\' + nom, trouve));
    } while (FindNextFileW(recherche, &trouve) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES)
        Echoue(dossier);
    return entrees;
}

/// Deletes a file, an empty folder, or a link without its target.
bool Retire(const Entree &entree)
{
    return (entree.Est(FILE_ATTRIBUTE_DIRECTORY) ? RemoveDirectoryW(entree.chemin.c_str())
                                                 : DeleteFileW(entree.chemin.c_str())) != 0;
}

/// The path at which the system opens chemin. drapeaux: those of CreateFileW.
QString PlaceOuverte(const std::wstring &chemin, DWORD drapeaux)
{
    const PoigneeWindows entree =
        OuvreEntree(chemin, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | drapeaux);
    if (!entree)
        Echoue(chemin);
    std::vector<wchar_t> place(LongueurChemin);
    const DWORD longueur = GetFinalPathNameByHandleW(entree.get(), place.data(), static_cast<DWORD>(place.size()),
                                                     FILE_NAME_OPENED | VOLUME_NAME_NT);
    if (longueur == 0 || longueur >= place.size())
        Echoue(chemin);
    return QString::fromWCharArray(place.data(), static_cast<qsizetype>(longueur));
}

/// Refuses an entry that the system opens elsewhere than in its folder, which is a link that it resolves unasked: its
/// deletion would delete the target. Wine resolves the links of a Linux disk so.
void ExigeSurPlace(const std::wstring &chemin)
{
    const std::size_t nom = chemin.rfind(L'\\') + 1;
    QString attendue = PlaceOuverte(chemin.substr(0, nom), 0);
    if (!attendue.endsWith(u'\\'))
        attendue += u'\\';
    attendue += QString::fromStdWString(chemin.substr(nom));
    if (attendue.compare(PlaceOuverte(chemin, FILE_FLAG_OPEN_REPARSE_POINT), Qt::CaseInsensitive) != 0)
        Echoue(chemin, ErreurLien);
}

/// Deletes write-protected files too, since the operator has agreed to the deletion of all entries.
void Exige(const Entree &entree)
{
    ExigeSurPlace(entree.chemin);
    if (Retire(entree))
        return;
    const DWORD cause = GetLastError();
    if (cause != ERROR_ACCESS_DENIED || !entree.Est(FILE_ATTRIBUTE_READONLY) || entree.Mene())
        Echoue(entree.chemin, cause);
    SetFileAttributesW(entree.chemin.c_str(), entree.attributs & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (!Retire(entree))
        Echoue(entree.chemin);
}

void EffaceEntree(const Entree &entree, const std::function<bool()> &suivi)
{
    if (entree.EstDossier()) {
        for (const Entree &dedans : Entrees(entree.chemin))
            EffaceEntree(dedans, suivi);
    }
    Exige(entree);
    if (!suivi())
        throw Erreur(Erreur::DialogueAnnule, QStringLiteral("The deletion was stopped."));
}

void Compte(const std::wstring &dossier, ContenuDossier &contenu)
{
    for (const Entree &entree : Entrees(dossier)) {
        ++(entree.EstDossier() ? contenu.dossiers : contenu.fichiers);
        if (entree.EstDossier())
            Saute([&] { Compte(entree.chemin, contenu); });
    }
}

} // namespace

ContenuDossier CompteContenu(const QString &chemin)
{
    ContenuDossier contenu;
    Saute([&] {
        const Entree dossier = Regarde(CheminSysteme(chemin));
        if (dossier.EstDossier())
            Compte(dossier.chemin, contenu);
    });
    return contenu;
}

bool EstLien(const QString &chemin)
{
    bool lien = false;
    Saute([&] { lien = Regarde(CheminSysteme(chemin)).Mene(); });
    return lien;
}

void CreeDossier(const QString &chemin)
{
    qCInfo(JournalFichiers) << "makes the folder" << chemin;
    ExigeNom(chemin);
    const std::wstring dossier = CheminSysteme(chemin);
    if (CreateDirectoryW(dossier.c_str(), nullptr) == 0)
        Echoue(dossier);
}

void AssureDossier(const QString &chemin)
{
    const QFileInfo dossier(QDir::cleanPath(QFileInfo(chemin).absoluteFilePath()));
    if (dossier.isDir())
        return;
    if (!QDir(dossier.filePath()).isRoot())
        AssureDossier(dossier.path());
    const std::wstring manque = CheminSysteme(dossier.filePath());
    if (CreateDirectoryW(manque.c_str(), nullptr) == 0 && GetLastError() != ERROR_ALREADY_EXISTS)
        Echoue(manque);
}

void RenommeDossier(const QString &ancien, const QString &nouveau)
{
    qCInfo(JournalFichiers) << "renames" << ancien << "as" << nouveau;
    ExigeNom(nouveau);
    const std::wstring de = CheminSysteme(ancien);
    const std::wstring vers = CheminSysteme(nouveau);
    // The system refuses an existing name. A new name that differs in case only is allowed.
    if (MoveFileExW(de.c_str(), vers.c_str(), MOVEFILE_WRITE_THROUGH) == 0) {
        const DWORD cause = GetLastError();
        Echoue(cause == ERROR_ALREADY_EXISTS ? vers : de, cause);
    }
}

void EffaceDossier(const QString &chemin, const std::function<bool()> &suivi)
{
    qCInfo(JournalFichiers) << "deletes" << chemin;
    EffaceEntree(Regarde(CheminSysteme(chemin)), suivi);
}
