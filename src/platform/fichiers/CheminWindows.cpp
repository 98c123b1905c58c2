#include "platform/fichiers/CheminWindows.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

std::wstring CheminSysteme(const QString &chemin)
{
    const QString entier = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(chemin).absoluteFilePath()));
    if (entier.startsWith(QLatin1String("\\\\?\\")) || entier.startsWith(QLatin1String("\\\\.\\")))
        return entier.toStdWString();
    if (entier.startsWith(QLatin1String("\\\\")))
        return (QStringLiteral("\\\\?\\UNC") + entier.mid(1)).toStdWString();
    return (QStringLiteral("\\\\?\\") + entier).toStdWString();
}

bool NomPossible(const QString &chemin)
{
    static const QRegularExpression refuses(QStringLiteral(R"([<>:"|?*\x00-\x1f]|[. ]$)"));
    // Superscript digits 1 to 3 count too.
    static const QRegularExpression appareils(
        QStringLiteral(R"(^(CON|PRN|AUX|NUL|CONIN\$|CONOUT\$|(COM|LPT)[0-9\x{b9}\x{b2}\x{b3}])\s*(\.|$))"),
        QRegularExpression::CaseInsensitiveOption);
    const QString natif = QDir::toNativeSeparators(chemin);
    const QString nom = natif.mid(natif.lastIndexOf(u'\\') + 1);
    return !nom.contains(refuses) && !nom.contains(appareils);
}
