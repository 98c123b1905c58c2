#include "gauges/AvisMesures.h"

#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/SalveBanc.h"
#include "locale/Langue.h"
#include "platform/base/Nombres.h"
#include "platform/base/PageCode1252.h"
#include "platform/dialogues/Boites.h"

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

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
constexpr Texte3 TropGrand{u" est trop grand", u" is too large", u" es demasiado grande"};
constexpr Texte3 Incomplete{u"la première mesure est incomplète, mesurez cet outil de nouveau",
                            u"the first measure is incomplete, measure this tool again",
                            u"la primera medida está incompleta, mida de nuevo esta herramienta"};
constexpr Texte3 Suite{u"ce qui suit dans la même salve n'est pas écrit : ",
                       u"what follows in the same burst is not written: ",
                       u"lo que sigue en la misma ráfaga no se escribe: "};

/// texte as it came, its control characters by their names; what is longer than any burst is cut.
QString Visible(const QString &texte)
{
    constexpr qsizetype place = 120; // characters
    const QString visible = ControlesVisibles(texte);
    return visible.size() > place ? visible.left(place) + QStringLiteral("...") : visible;
}

QString EntreGuillemets(const QString &texte)
{
    return u'"' + Visible(texte) + u'"';
}

/// How a row of the box begins.
QString Rang(int place)
{
    return QStringLiteral("    N° ") + QString::number(place);
}

/// Whether a field is anything else than one number with blanks around it: where the line has spoilt a digit, what is
/// read is another number than the bench has sent.
bool EstDouteux(const QString &champ)
{
    static const QRegularExpression nombre(
        QStringLiteral(R"(\A[ \t]*[+-]?[ \t]*(\d+\.?\d*|\.\d+)(E[+-]?\d+)?[ \t]*\z)"),
        QRegularExpression::CaseInsensitiveOption);
    return !nombre.match(champ).hasMatch() || EstTropGrand(champ);
}

/// What a burst begins with, control characters and blanks left away: its columns count from there.
QString DepuisMarque(const QString &recue)
{
    const auto debut = std::find_if(recue.begin(), recue.end(), [](QChar c) { return c > u' '; });
    return recue.mid(debut - recue.begin());
}

/// Where in a burst a second mark stands, which a measure begins with that came unasked; -1 for none.
qsizetype SecondeMarque(const QString &salve)
{
    return salve.indexOf(QStringView(MarqueMesure), 1);
}

/// A second measure that begins before the first one can have ended: the bench was made to print again.
bool EstCoupee(const QString &salve)
{
    const qsizetype seconde = SecondeMarque(salve);
    return seconde > 0 && seconde < std::max(ParamCom.TailleRecep, ColonneMode.debut);
}

/// What stands in a burst behind its measure: a second one, and where the line has spoilt its mark, what is behind the
/// characters of a whole one. Less than a mark is no measure.
QString DerriereMesure(const QString &salve)
{
    qsizetype debut = SecondeMarque(salve);
    if (debut < 0 && ParamCom.TailleRecep >= ColonneMode.debut)
        debut = ParamCom.TailleRecep;
    const QString suite = debut < 0 ? QString() : salve.mid(debut).simplified();
    return suite.size() < QStringView(MarqueMesure).size() ? QString() : suite;
}

/// The fields of a measure that are doubtful, and what they are taken for; all of them where it broke off.
QStringList DoutesChamps(const QString &salve, const JaugeOutil &jauge)
{
    const std::tuple<QString, Colonnes, QString> champs[] = {
        {Texte(NomCorrecteur), ColonnesCorrecteur, QString::number(jauge.NumCorr)},
        {QStringLiteral("Z"), ColonnesZ, TexteReel(jauge.JaugeZ)},
        {QStringLiteral("X"), ColonnesX, TexteReel(jauge.JaugeX)}};
    const bool coupee = EstCoupee(salve);
    QStringList doutes;
    if (coupee)
        doutes << Texte(Incomplete);
    for (const auto &[nom, colonnes, valeur] : champs) {
        const QString champ = Champ(salve, colonnes);
        if (coupee || EstDouteux(champ))
            doutes << nom + u' ' + EntreGuillemets(SansBlancs(champ)) + Texte(PrisPour) + valeur;
    }
    return doutes;
}

/// The doubts about a measure, none for a sound one.
QStringList Doutes(const QString &salve, const JaugeOutil &jauge)
{
    QStringList doutes = DoutesChamps(salve, jauge);
    if (jauge.ModeMesure != u'R' && jauge.ModeMesure != u'D')
        doutes << Texte(Lettre) + EntreGuillemets(QString(jauge.ModeMesure).trimmed()) + QStringLiteral(" : X") +
                      Texte(PrisPour) + TexteReel(jauge.JaugeX) + Texte(ParamMac.ModeX == 0 ? AuRayon : AuDiametre);
    if (const QString suite = DerriereMesure(salve); !suite.isEmpty())
        doutes << Texte(Suite) + EntreGuillemets(suite);
    return doutes;
}

/// The lines of a row. One that is too long for the box goes on under its text: at the margin it would read as the next
/// tool's.
QStringList Replie(QString rang)
{
    constexpr qsizetype largeur = 88; // characters
    const QString retrait(10, u' ');
    QStringList lignes;
    while (rang.size() > largeur) {
        qsizetype coupe = rang.lastIndexOf(QLatin1String(", "), largeur - 1) + 1;
        if (coupe <= retrait.size())
            coupe = rang.lastIndexOf(u' ', largeur);
        if (coupe <= retrait.size())
            break;
        lignes << rang.left(coupe);
        rang = retrait + rang.mid(coupe + 1);
    }
    return lignes << rang;
}

/// A heading and its rows, as many as a screen has room for, with a blank line behind them.
QString Paragraphe(const Texte3 &entete, const QStringList &rangs)
{
    constexpr qsizetype place = 20; // lines
    if (rangs.isEmpty())
        return {};
    QStringList lignes{Texte(entete)};
    for (qsizetype i = 0; i < rangs.size(); ++i) {
        const QStringList suite = Replie(rangs[i]);
        if (lignes.size() + suite.size() > place + 1) {
            lignes << QStringLiteral("    ... + ") + QString::number(rangs.size() - i);
            break;
        }
        lignes << suite;
    }
    return lignes.join(u'\r') + QStringLiteral("\r\r");
}

} // namespace

void AvisMesures::NonLue(int place, const QString &salve)
{
    const QString contenu = Visible(salve.simplified());
    QString rang = Rang(place) + QStringLiteral(" : ") + (contenu.isEmpty() ? Texte(Rien) : contenu);
    for (const auto &[nom, colonnes] : {std::pair(u'Z', ColonnesZ), std::pair(u'X', ColonnesX)})
        if (const QString champ = Champ(salve, colonnes); EstTropGrand(champ))
            rang += QStringLiteral(", ") + nom + u' ' + EntreGuillemets(SansBlancs(champ)) + Texte(TropGrand);
    m_nonLues << rang;
}

void AvisMesures::NonDemandee(int place, qsizetype caracteres)
{
    m_nonLues << Rang(place) + QStringLiteral(" : ") + QString::number(caracteres) + Texte(SansDemande);
}

void AvisMesures::Lue(int place, const QString &recue, const JaugeOutil &jauge)
{
    const QStringList doutes = Doutes(DepuisMarque(recue), jauge);
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
