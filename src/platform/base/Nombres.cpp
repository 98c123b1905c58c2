#include "platform/base/Nombres.h"

#include "platform/base/Erreur.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

double Val(const QString &texte)
{
    QString sansBlancs = texte;
    sansBlancs.remove(u' ').remove(u'\t');
    const QByteArray octets = sansBlancs.toLatin1();
    const char *debut = octets.cbegin();
    if (*debut == '+' && octets.size() > 1 && debut[1] != '-')
        ++debut; // from_chars takes a minus sign only
    double valeur = 0;
    std::from_chars(debut, octets.cend(), valeur);
    return std::isfinite(valeur) ? valeur : 0;
}

QString TexteNombre(qint64 nombre)
{
    const QString chiffres = QString::number(nombre);
    return nombre < 0 ? chiffres : u' ' + chiffres;
}

QString TexteReel(float valeur)
{
    if (!std::isfinite(valeur))
        throw Erreur(Erreur::Depassement, QString::number(valeur));
    constexpr int chiffres = 7;
    // The value is rounded to 7 significant digits first, so that its shortest text has no more than these.
    return TexteDouble(QString::number(static_cast<double>(valeur), 'e', chiffres - 1).toDouble());
}

QString TexteDouble(double valeur)
{
    if (!std::isfinite(valeur))
        throw Erreur(Erreur::Depassement, QString::number(valeur));
    if (valeur == 0)
        return QStringLiteral("0"); // negative zero too
    QString texte = QString::number(valeur, 'f', QLocale::FloatingPointShortest);
    if (texte.startsWith(QLatin1String("0.")))
        texte.remove(0, 1);
    else if (texte.startsWith(QLatin1String("-0.")))
        texte.remove(1, 1);
    return texte;
}

int EnEntier(double valeur)
{
    const double arrondi = std::nearbyint(valeur); // the default rounding mode takes a tie to the even number
    if (!(arrondi >= std::numeric_limits<qint16>::min() && arrondi <= std::numeric_limits<qint16>::max()))
        throw Erreur(Erreur::Depassement, QString::number(valeur, 'g', QLocale::FloatingPointShortest));
    return static_cast<int>(arrondi);
}

QString SansBlancs(const QString &texte)
{
    const auto blanc = [](QChar caractere) { return caractere == u' '; };
    const auto debut = std::find_if_not(texte.begin(), texte.end(), blanc);
    const auto fin = std::find_if_not(texte.rbegin(), std::make_reverse_iterator(debut), blanc).base();
    return QString(debut, fin - debut);
}
