#include "platform/texte/PagesDeCode.h"

#include <QHash>
#include <QStringDecoder>

namespace {

/// The name of the converter for a code page. Most of those without a row are the PC's own.
QByteArray NomDePage(int page)
{
    constexpr int PremiereWindows = 1250;
    constexpr int DerniereWindows = 1258;
    static const QHash<int, QByteArray> noms{{874, "windows-874"}, {932, "Shift_JIS"}, {936, "GBK"},
                                             {949, "windows-949"}, {950, "Big5"},      {10000, "macintosh"}};
    const bool windows = page >= PremiereWindows && page <= DerniereWindows;
    return noms.value(page, (windows ? "windows-" : "IBM") + QByteArray::number(page));
}

} // namespace

std::optional<QString> DecodePage(const QByteArray &octets, int page)
{
    QStringDecoder decodeur(NomDePage(page).constData(), QStringDecoder::Flag::Stateless);
    if (!decodeur.isValid())
        return {};
    return decodeur(octets);
}
