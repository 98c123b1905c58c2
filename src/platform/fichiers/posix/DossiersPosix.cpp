#include "platform/fichiers/Dossiers.h"

#include "platform/base/Erreur.h"
#include "platform/base/Journal.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <system_error>
#include <vector>

namespace {

namespace fs = std::filesystem;

fs::path EnChemin(const QString &chemin)
{
    return QFileInfo(chemin).filesystemFilePath();
}

[[noreturn]] void Echoue(const fs::path &chemin, std::error_code cause)
{
    throw ErreurDeFichier(cause.value(), QDir::toNativeSeparators(QFileInfo(chemin).filePath()));
}

void Exige(const fs::path &chemin, std::error_code cause)
{
    if (cause)
        Echoue(chemin, cause);
}

/// True for a folder, false for a link to one.
bool EstDossier(const fs::path &chemin)
{
    std::error_code cause;
    return fs::symlink_status(chemin, cause).type() == fs::file_type::directory;
}

/// The entries of a folder. The listing is complete before anything is deleted, since on some file systems a deletion
/// upsets a listing under way.
std::vector<fs::path> Entrees(const fs::path &dossier)
{
    std::vector<fs::path> entrees;
    std::error_code cause;
    fs::directory_iterator entree(dossier, cause);
    for (; entree != fs::directory_iterator(); entree.increment(cause))
        entrees.push_back(entree->path());
    Exige(dossier, cause);
    return entrees;
}

void EffaceEntree(const fs::path &chemin, const std::function<bool()> &suivi)
{
    if (EstDossier(chemin)) {
        for (const fs::path &entree : Entrees(chemin))
            EffaceEntree(entree, suivi);
    }
    std::error_code cause;
    fs::remove(chemin, cause);
    Exige(chemin, cause);
    if (!suivi())
        throw Erreur(Erreur::DialogueAnnule, QStringLiteral("The deletion was stopped."));
}

} // namespace

ContenuDossier CompteContenu(const QString &chemin)
{
    ContenuDossier contenu;
    const fs::path dossier = EnChemin(chemin);
    if (!EstDossier(dossier))
        return contenu;
    std::error_code cause;
    fs::recursive_directory_iterator entree(dossier, fs::directory_options::skip_permission_denied, cause);
    for (; entree != fs::recursive_directory_iterator(); entree.increment(cause)) {
        std::error_code parti;
        ++(entree->symlink_status(parti).type() == fs::file_type::directory ? contenu.dossiers : contenu.fichiers);
    }
    return contenu;
}

bool EstLien(const QString &chemin)
{
    return QFileInfo(chemin).isSymLink();
}

void CreeDossier(const QString &chemin)
{
    qCInfo(JournalFichiers) << "makes the folder" << chemin;
    std::error_code cause;
    const bool cree = fs::create_directory(EnChemin(chemin), cause);
    if (!cree && !cause)
        cause = std::make_error_code(std::errc::file_exists);
    Exige(EnChemin(chemin), cause);
}

void AssureDossier(const QString &chemin)
{
    std::error_code cause;
    fs::create_directories(EnChemin(chemin), cause);
    Exige(EnChemin(chemin), cause);
}

void RenommeDossier(const QString &ancien, const QString &nouveau)
{
    qCInfo(JournalFichiers) << "renames" << ancien << "as" << nouveau;
    const fs::path de = EnChemin(ancien);
    const fs::path vers = EnChemin(nouveau);
    std::error_code cause;
    // The system would silently replace an empty folder, so an existing name is refused. A new name that differs in
    // case only is allowed where the file system ignores case.
    if (fs::symlink_status(vers, cause).type() != fs::file_type::not_found && !fs::equivalent(de, vers, cause))
        Echoue(vers, std::make_error_code(std::errc::file_exists));
    cause.clear();
    fs::rename(de, vers, cause);
    Exige(de, cause);
}

void EffaceDossier(const QString &chemin, const std::function<bool()> &suivi)
{
    qCInfo(JournalFichiers) << "deletes" << chemin;
    EffaceEntree(EnChemin(chemin), suivi);
}
