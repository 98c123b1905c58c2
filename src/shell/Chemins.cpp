#include "shell/Chemins.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString DossierFixe;

QString DossierUtilisateur()
{
    const QString dossier =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Dorvanel");
    QDir().mkpath(dossier);
    return dossier;
}

} // namespace

QString DossierApplication()
{
    if (!DossierFixe.isEmpty())
        return DossierFixe;
    const QString dossier = QCoreApplication::applicationDirPath();
    return QDir::toNativeSeparators(QFileInfo(dossier).isWritable() ? dossier : DossierUtilisateur());
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

QString EnMajuscules(const QString &chemin)
{
    const QString majuscules = chemin.toUpper();
    return QFileInfo(majuscules) == QFileInfo(chemin) ? majuscules : chemin;
}
