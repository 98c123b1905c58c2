#include "platform/texte/CodagesRtf.h"

#include "platform/base/PageCode1252.h"

#include <QHash>
#include <QStringDecoder>

QByteArray CodageDePage(int page)
{
    constexpr int Occidentale = 1252;
    constexpr int PremiereWindows = 1250;
    constexpr int DerniereWindows = 1258;
    if (page <= 0 || page == Occidentale)
        return {};
    const bool windows = page >= PremiereWindows && page <= DerniereWindows;
    return (windows ? "windows-" : "IBM") + QByteArray::number(page);
}

QByteArray CodageDeJeu(int jeu)
{
    // Character set numbers as published for the Windows font interface.
    static const QHash<int, QByteArray> codages{
        {77, "macintosh"},     {128, "Shift_JIS"},    {129, "windows-949"},  {134, "GBK"},
        {136, "Big5"},         {161, "windows-1253"}, {162, "windows-1254"}, {163, "windows-1258"},
        {177, "windows-1255"}, {178, "windows-1256"}, {186, "windows-1257"}, {204, "windows-1251"},
        {222, "windows-874"},  {238, "windows-1250"}, {254, "IBM437"},       {255, "IBM850"}};
    return codages.value(jeu);
}

QString TexteDeCodage(const QByteArray &octets, const QByteArray &codage)
{
    if (codage.isEmpty())
        return TexteDe1252(octets);
    QStringDecoder decodeur(codage.constData(), QStringDecoder::Flag::Stateless);
    // A code page without a converter is most often UTF-8.
    if (!decodeur.isValid())
        decodeur = QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    return decodeur(octets);
}
