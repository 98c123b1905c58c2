#include "platform/fichiers/Lieux.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

/// $XDG_DATA_HOME counts only where it is absolute: the program changes its current folder.
QString DonneesUtilisateur()
{
    const QString dossier = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir::isAbsolutePath(dossier) ? dossier : QDir::homePath() + QStringLiteral("/.local/share");
}

/// What lies below /usr belongs to the package manager, which must find it as it laid it, even when it is root that
/// starts the program and could write there.
bool EstInstalle(const QString &dossier)
{
    return dossier.startsWith(QLatin1String("/usr/")) || !QFileInfo(dossier).isWritable();
}
