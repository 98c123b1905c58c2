#include "platform/texte/CodagesRtf.h"

#include "platform/base/PageCode1252.h"
#include "platform/texte/PagesDeCode.h"

#include <QHash>

int PageDeJeu(int jeu)
{
    // Character set numbers as published for the Windows font interface.
    static const QHash<int, int> pages{{77, 10000}, {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253},
                                       {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
                                       {222, 874},  {238, 1250}, {254, 437},  {255, 850}};
    return pages.value(jeu);
}

QString TexteDePage(const QByteArray &octets, int page)
{
    constexpr int Occidentale = 1252;
    if (page <= 0 || page == Occidentale)
        return TexteDe1252(octets);
    // A code page without a converter is most often UTF-8.
    const std::optional<QString> texte = DecodePage(octets, page);
    return texte ? *texte : QString::fromUtf8(octets);
}
