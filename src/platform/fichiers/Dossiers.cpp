#include "platform/fichiers/Dossiers.h"

#include "platform/base/Casse.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace {

/// The canonical path of a file, folder or link. Links in the folders above it are resolved; a link at the end is not.
QString Place(const QString &chemin)
{
    const QFileInfo entree(chemin);
    return QDir(entree.dir().canonicalPath()).filePath(entree.fileName());
}

} // namespace

bool EstRacine(const QString &chemin)
{
    const QDir dossier(chemin);
    return dossier.isRoot() || QFileInfo(QStorageInfo(dossier).rootPath()) == QFileInfo(dossier.absolutePath());
}

std::optional<QString> ResteDerriere(const QString &dossier, const QString &chemin)
{
    const QString cherche = Place(QDir::cleanPath(dossier));
    for (const QString &entier : {QDir::cleanPath(chemin), QFileInfo(chemin).canonicalFilePath()}) {
        for (QString debut = entier; !debut.isEmpty() && !QDir(debut).isRoot(); debut = QFileInfo(debut).path()) {
            if (Place(debut).compare(cherche, CasseDesChemins()) == 0)
                return entier.mid(debut.size());
        }
    }
    return std::nullopt;
}
