#include "shell/Chemins.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace {

QString DossierFixe;

/// Copies what the program was shipped with; a sample that cannot be copied is passed over.
void CopieExemples(const QString &de, const QString &vers)
{
    for (const QLatin1String nom : {QLatin1String("/Conf"), QLatin1String("/Programmes")}) {
        std::error_code echec;
        std::filesystem::copy(QFileInfo(de + nom).filesystemFilePath(), QFileInfo(vers + nom).filesystemFilePath(),
                              std::filesystem::copy_options::recursive, echec);
    }
}

QString DossierUtilisateur(const QString &dossierProgramme)
{
    const QString dossier =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Dorvanel");
    if (!QFileInfo::exists(dossier) && QDir().mkpath(dossier))
        CopieExemples(dossierProgramme, dossier);
    return dossier;
}

QString DossierOrdinaire()
{
    const QString dossier = QCoreApplication::applicationDirPath();
    return QDir::toNativeSeparators(QFileInfo(dossier).isWritable() ? dossier : DossierUtilisateur(dossier));
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
