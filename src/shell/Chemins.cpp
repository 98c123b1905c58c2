#include "shell/Chemins.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace {

QString DossierFixe;

/// Copies what the program was shipped with, over nothing that is there; a sample that cannot be copied is passed over.
void CopieExemples(const QString &de, const QString &vers)
{
    using std::filesystem::copy_options;
    for (const QLatin1String nom : {QLatin1String("/Conf"), QLatin1String("/Programmes")}) {
        std::error_code echec;
        std::filesystem::copy(QFileInfo(de + nom).filesystemFilePath(), QFileInfo(vers + nom).filesystemFilePath(),
                              copy_options::recursive | copy_options::skip_existing, echec);
    }
}

/// A start that finds no settings is the first one, even where the folder is there: the operator may have tied his
/// adapter to a port in it before. Later starts bring back nothing that he has deleted.
QString DossierUtilisateur(const QString &dossierProgramme)
{
    QString dossier =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Dorvanel");
    if (!QFileInfo::exists(dossier + QStringLiteral("/Dorvanel.ini")) && QDir().mkpath(dossier))
        CopieExemples(dossierProgramme, dossier);
    return dossier;
}

/// What lies below /usr belongs to the package manager, which must find it as it laid it, even when it is root that
/// starts the program and could write there.
bool EstInstalle(const QString &dossier)
{
    return dossier.startsWith(QLatin1String("/usr/")) || !QFileInfo(dossier).isWritable();
}

QString DossierOrdinaire()
{
    const QString dossier = QCoreApplication::applicationDirPath();
    return QDir::toNativeSeparators(EstInstalle(dossier) ? DossierUtilisateur(dossier) : dossier);
}

} // namespace

QString DossierApplication()
{
    if (!DossierFixe.isEmpty())
        return DossierFixe;
    static const QString dossier = DossierOrdinaire();
    return dossier;
}

void FixeDossierApplication(const QString &dossier)
{
    DossierFixe = dossier;
}

QString AjouteAntislash(const QString &chemin)
{
    const QChar separateur = QDir::separator();
    return chemin.endsWith(separateur) ? chemin : chemin + separateur;
}

QString NomSeul(const QString &chemin)
{
    return chemin.mid(chemin.lastIndexOf(QDir::separator()) + 1);
}

QString DepuisDossierApplication(const QString &chemin)
{
    return QDir::toNativeSeparators(QDir(DossierApplication()).absoluteFilePath(chemin));
}

QString EnMajuscules(const QString &chemin)
{
    const QString majuscules = chemin.toUpper();
    return QFileInfo(majuscules) == QFileInfo(chemin) ? majuscules : chemin;
}
