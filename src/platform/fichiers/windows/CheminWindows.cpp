#include "platform/fichiers/windows/CheminWindows.h"

#include <QDir>
#include <QFileInfo>
#include <QStringView>

#include <algorithm>

namespace {

bool EstRefuse(QChar signe)
{
    return signe < u' ' || QStringView(u"<>:\"|?*").contains(signe);
}

/// True for the name of a device, with any extension. No regular expression here: texts are also written on a second
/// thread, and with this compiler the end of a thread that has used one crashes (Qt keeps memory for it in the thread).
bool EstAppareil(QStringView nom)
{
    const QStringView racine = nom.left(nom.indexOf(u'.')).trimmed();
    for (const QStringView appareil : {u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"}) {
        if (racine.compare(appareil, Qt::CaseInsensitive) == 0)
            return true;
    }
    const QStringView genre = racine.chopped(std::min<qsizetype>(racine.size(), 1));
    return (genre.compare(u"COM", Qt::CaseInsensitive) == 0 || genre.compare(u"LPT", Qt::CaseInsensitive) == 0) &&
           QStringView(u"0123456789\u00B9\u00B2\u00B3").contains(racine.back());
}

} // namespace

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
    const QString natif = QDir::toNativeSeparators(chemin);
    const QStringView nom = QStringView(natif).mid(natif.lastIndexOf(u'\\') + 1);
    return std::ranges::none_of(nom, EstRefuse) && !nom.endsWith(u'.') && !nom.endsWith(u' ') && !EstAppareil(nom);
}
