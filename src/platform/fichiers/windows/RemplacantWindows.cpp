#include "platform/fichiers/Lanceur.h"
#include "platform/fichiers/Remplacant.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

/// Newer versions of Windows lack WordPad. All have the text editor.
std::optional<bool> LanceRemplacant(const QString &programme, const QString &fichier)
{
    const QStringList traitements = {QStringLiteral("write"), QStringLiteral("wordpad")};
    if (!traitements.contains(QFileInfo(programme).completeBaseName(), Qt::CaseInsensitive) ||
        !QStandardPaths::findExecutable(programme).isEmpty())
        return std::nullopt;
    return QProcess::startDetached(QStringLiteral("notepad.exe"), {fichier});
}

bool ProgrammesSansExtension()
{
    return false;
}
