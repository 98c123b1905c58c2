#include "gauges/AvisMesures.h"

#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/SalveBanc.h"
#include "locale/Langue.h"
#include "platform/base/Nombres.h"
#include "platform/dialogues/Boites.h"

#include <QRegularExpression>

namespace {

constexpr Texte3 Titre{u"Mesures du banc", u"Measures of the bench", u"Medidas del banco"};
constexpr Texte3 NonLues{u"Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :",
                         u"These measures could not be read, they are not written:",
                         u"Estas medidas no se han podido leer, no se escriben:"};
constexpr Texte3 Douteuses{u"Ces mesures sont douteuses, elles sont écrites ainsi :",
                           u"These measures are doubtful, they are written like this:",
                           u"Estas medidas son dudosas, se escriben así:"};
constexpr Texte3 Aucune{
    u"Aucun fichier de jauges n'est créé. Le texte reçu du banc reste dans le fichier :\r",
    u"No gauge file is made. The text received from the bench stays in the file:\r",
    u"No se crea ningún fichero de correctores. El texto recibido del banco queda en el fichero:\r"};
constexpr Texte3 SansDemande{u" caractères arrivés sans que la jauge suivante soit demandée",
                             u" characters that came before the following gauge was asked for",
                             u" caracteres llegados sin pedir la capacidad siguiente"};
constexpr Texte3 Rien{u"(rien)", u"(nothing)", u"(nada)"};
constexpr Texte3 Correcteur{u", correcteur ", u", corrector ", u", corrector "};
constexpr Texte3 NomCorrecteur{u"correcteur", u"corrector", u"corrector"};
constexpr Texte3 PrisPour{u" pris pour ", u" taken for ", u" tomado por "};
constexpr Texte3 Lettre{u"lettre ", u"letter ", u"letra "};
constexpr Texte3 AuRayon{u" au rayon", u" as a radius", u" como radio"};
constexpr Texte3 AuDiametre{u" au diamètre", u" as a diameter", u" como diámetro"};
constexpr Texte3 Suite{u"ce qui suit dans la même salve n'est pas écrit : ",
                       u"what follows in the same burst is not written: ",
                       u"lo que sigue en la misma ráfaga no se escribe: "};

QString EntreGuillemets(const QString &texte)
{
    return u'"' + texte.simplified() + u'"';
}

/// How a row of the box begins.
QString Rang(int place)
{
    return QStringLiteral("    N° ") + QString::number(place);
}

/// Whether a field is no number, or breaks off in the midst of one, as where the line has spoilt a digit: what is read
/// is then another number than the bench has sent.
bool EstDouteux(QString champ)
{
    static const QRegularExpression nombre(QStringLiteral(R"(^[+-]?(\d+\.?\d*|\.\d+)(E[+-]?\d+)?\D*$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return !nombre.match(champ.remove(u' ')).hasMatch();
}

/// A field and what it is taken for.
QString Doute(const QString &nom, const QString &champ, const QString &valeur)
{
    return nom + u' ' + EntreGuillemets(champ) + Texte(PrisPour) + valeur;
}

/// What stands in a burst behind its measure: a second one that came unasked begins with its mark, and where the line
/// has spoilt that, behind the characters of a whole one. Less than a mark is no measure.
QString DerriereMesure(const QString &salve)
{
    qsizetype debut = salve.indexOf(QStringView(MarqueMesure), 1);
    if (debut < 0 && ParamCom.TailleRecep >= ColonneMode.debut)
        debut = ParamCom.TailleRecep;
    const QString suite = debut < 0 ? QString() : salve.mid(debut).simplified();
    return suite.size() < QStringView(MarqueMesure).size() ? QString() : suite;
}

/// The doubts about a measure, none for a sound one.
QStringList Doutes(const QString &salve, const JaugeOutil &jauge)
{
    QStringList doutes;
    const QString numero = Champ(salve, ColonnesCorrecteur);
    if (EstDouteux(numero))
        doutes << Doute(Texte(NomCorrecteur), numero, QString::number(jauge.NumCorr));
    if (const QString z = Champ(salve, ColonnesZ); EstDouteux(z))
        doutes << Doute(QStringLiteral("Z"), z, TexteReel(jauge.JaugeZ));
    const QString x = Champ(salve, ColonnesX);
    if (EstDouteux(x))
        doutes << Doute(QStringLiteral("X"), x, TexteReel(jauge.JaugeX));
    if (jauge.ModeMesure != u'R' && jauge.ModeMesure != u'D')
        doutes << Texte(Lettre) + EntreGuillemets(jauge.ModeMesure) + QStringLiteral(" : X") + Texte(PrisPour) +
                      TexteReel(jauge.JaugeX) + Texte(ParamMac.ModeX == 0 ? AuRayon : AuDiametre);
    if (const QString suite = DerriereMesure(salve); !suite.isEmpty())
        doutes << Texte(Suite) + EntreGuillemets(suite);
    return doutes;
}

/// A heading and its rows, as many as a screen has room for, with a blank line behind them.
QString Paragraphe(const Texte3 &entete, QStringList rangs)
{
    constexpr qsizetype place = 12;
    if (rangs.isEmpty())
        return {};
    const qsizetype autres = rangs.size() - place;
    if (autres > 0)
        rangs = rangs.first(place) << QStringLiteral("    ... + ") + QString::number(autres);
    return Texte(entete) + u'\r' + rangs.join(u'\r') + QStringLiteral("\r\r");
}

} // namespace

void AvisMesures::NonLue(int place, const QString &salve)
{
    const QString contenu = salve.simplified();
    m_nonLues << Rang(place) + QStringLiteral(" : ") + (contenu.isEmpty() ? Texte(Rien) : contenu);
}

void AvisMesures::NonDemandee(int place, qsizetype caracteres)
{
    m_nonLues << Rang(place) + QStringLiteral(" : ") + QString::number(caracteres) + Texte(SansDemande);
}

void AvisMesures::Lue(int place, const QString &salve, const JaugeOutil &jauge)
{
    const QStringList doutes = Doutes(salve, jauge);
    if (!doutes.isEmpty())
        m_douteuses << Rang(place) + Texte(Correcteur) + QString::number(jauge.NumCorr) + QStringLiteral(" : ") +
                           doutes.join(QLatin1String(", "));
}

void AvisMesures::Montre(int lues) const
{
    if (m_nonLues.isEmpty() && m_douteuses.isEmpty())
        return;
    QString texte = Paragraphe(NonLues, m_nonLues) + Paragraphe(Douteuses, m_douteuses);
    if (lues == 0)
        texte += Texte(Aucune) + CheminRecep();
    MsgBox(texte.trimmed(), Boite::Exclamation, Texte(Titre));
}
