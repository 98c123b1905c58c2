#include "donnees/Chemins.h"

#include "platform/fichiers/Lieux.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString DossierFixe;

/// Copies the samples that the program was shipped with, and never overwrites a file. A sample is copied whole or not
/// at all, even when the disk is full or the start is broken off, so that nobody sends half a program. The user gets
/// the right to write to his copies, which the installed originals do not give.
void CopieExemples(const QString &de, const QString &vers)
{
    for (const QLatin1String nom : {QLatin1String("/Conf"), QLatin1String("/Programmes")}) {
        QDir().mkpath(vers + nom);
        const QFileInfoList exemples = QDir(de + nom).entryInfoList(QDir::Files);
        for (const QFileInfo &exemple : exemples) {
            QFile copie(vers + nom + u'/' + exemple.fileName());
            if (QFile::copy(exemple.filePath(), copie.fileName())) // QFile::copy gives the name only to a whole copy
                copie.setPermissions(copie.permissions() | QFile::WriteUser);
        }
    }
}

/// The user's application folder. It gets the samples on the first start, which is one without a settings file: the
/// folder alone may already exist, because the operator has linked an adapter in it. Later starts restore no sample
/// that he has deleted.
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
