#include "donnees/Chemins.h"

#include "platform/fichiers/Lieux.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString DossierFixe;

/// Copies what the program was shipped with, over nothing that is there. Each sample comes whole or, where the disk is
/// full or the start is broken off, not at all: nobody sends half a program. The user may change his copies even of
/// samples that belong to nobody.
void CopieExemples(const QString &de, const QString &vers)
{
    for (const QLatin1String nom : {QLatin1String("/Conf"), QLatin1String("/Programmes")}) {
        QDir().mkpath(vers + nom);
        const QFileInfoList exemples = QDir(de + nom).entryInfoList(QDir::Files);
        for (const QFileInfo &exemple : exemples) {
            QFile copie(vers + nom + u'/' + exemple.fileName());
            if (QFile::copy(exemple.filePath(), copie.fileName())) // under its name only when it is whole
                copie.setPermissions(copie.permissions() | QFile::WriteUser);
        }
    }
}

/// A start that finds no settings is the first one, even where the folder is there: the operator may have tied his
/// adapter to a port in it before. Later starts bring back nothing that he has deleted.
QString DossierUtilisateur(const QString &dossierProgramme)
{
    QString dossier = DonneesUtilisateur() + QStringLiteral("/Dorvanel");
    if (!QFileInfo::exists(dossier + QStringLiteral("/Dorvanel.ini")) && QDir().mkpath(dossier))
        CopieExemples(dossierProgramme, dossier);
    return dossier;
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
