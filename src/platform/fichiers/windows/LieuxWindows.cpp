#include "platform/fichiers/Lieux.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>

namespace {

/// True below Program Files, also for an administrator, who could write there.
bool EstPourTous(const QString &dossier)
{
    constexpr const char *variables[] = {"ProgramFiles", "ProgramFiles(x86)", "ProgramW6432"};
    return std::ranges::any_of(variables, [&dossier](const char *variable) {
        const QString place = QDir::fromNativeSeparators(qEnvironmentVariable(variable));
        return !place.isEmpty() && dossier.startsWith(place + u'/', Qt::CaseInsensitive);
    });
}

/// True when dossier is write-protected. Only a trial tells, since Qt does not evaluate access lists.
bool EstFerme(const QString &dossier)
{
    QTemporaryFile essai(dossier + QStringLiteral("/XXXXXX"));
    return !essai.open();
}

} // namespace

/// AppData\Local and not Roaming, since the ports and adapters belong to this PC.
QString DonneesUtilisateur()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

bool EstInstalle(const QString &dossier)
{
    return EstPourTous(dossier) || EstFerme(dossier);
}
