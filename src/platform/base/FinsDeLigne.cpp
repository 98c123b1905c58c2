#include "platform/base/FinsDeLigne.h"

#include "platform/base/PageCode1252.h"

#include <algorithm>

namespace {

constexpr QChar Cr = QChar::CarriageReturn;
constexpr QChar Lf = QChar::LineFeed;

bool EstFinDeLigne(QChar c)
{
    return c == Cr || c == Lf;
}

bool Passe(QChar c)
{
    return c.unicode() < 0x80 || EstEn1252(c);
}

} // namespace

QLatin1String TexteDe(FinDeLigne fin)
{
    constexpr const char *textes[] = {"\r\n", "\r", "\n", ""};
    return QLatin1String(textes[static_cast<int>(fin)]);
}

Troncon PremierTroncon(const QString &texte, qsizetype debut, qsizetype colonne)
{
    Troncon troncon{FinDeLigne::CrLf, debut};
    for (bool premiere = true;; premiere = false, colonne = 0) {
        const qsizetype plein = troncon.suite + std::max<qsizetype>(LongueurRang - colonne, 0);
        const auto *const limite = texte.begin() + std::min(plein + 1, texte.size());
        const auto *const c = std::find_if(texte.begin() + troncon.suite, limite, EstFinDeLigne);
        if (c == limite && plein < texte.size())
            return premiere ? Troncon{FinDeLigne::Aucune, plein} : troncon;
        if (c == limite)
            return {troncon.fin, texte.size()};
        const bool crLf = *c == Cr && c + 1 != texte.end() && c[1] == Lf;
        const FinDeLigne fin = crLf ? FinDeLigne::CrLf : *c == Cr ? FinDeLigne::Cr : FinDeLigne::Lf;
        if (!premiere && fin != troncon.fin)
            return troncon;
        troncon = {fin, c - texte.begin() + (crLf ? 2 : 1)};
    }
}

qint64 NombreLignes(const QString &texte)
{
    qint64 lignes = 0;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (texte[i] == Cr || (texte[i] == Lf && (i == 0 || texte[i - 1] != Cr)))
            ++lignes;
    }
    return lignes + (texte.isEmpty() || EstFinDeLigne(texte.back()) ? 0 : 1);
}

QString Normalise(const QString &texte)
{
    auto c = std::find_if_not(texte.begin(), texte.end(), Passe);
    if (c == texte.end())
        return texte;
    QString propre;
    propre.reserve(texte.size());
    propre.append(texte.constData(), c - texte.begin());
    for (; c != texte.end(); ++c) {
        if (Passe(*c))
            propre += *c;
        else if (*c == QChar::ParagraphSeparator || *c == QChar::LineSeparator)
            propre += QLatin1String("\r\n");
        else if (!(c->isLowSurrogate() && c != texte.begin() && std::prev(c)->isHighSurrogate()))
            propre += QLatin1Char('?');
    }
    return propre;
}

QString NormaliseEtranger(QString texte)
{
    if (!texte.contains(Cr))
        texte.replace(Lf, QLatin1String("\r\n"));
    return Normalise(texte);
}
