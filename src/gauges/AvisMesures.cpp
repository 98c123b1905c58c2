#include "gauges/AvisMesures.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
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
#include <cmath>
#include <limits>
#include <tuple>

namespace {

constexpr Texte3 Titre{u"Mesures du banc", u"Measures of the bench", u"Medidas del banco"};
constexpr Texte3 NonLues{u"Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :",
                         u"These measures could not be read, they are not written:",
                         u"Estas medidas no se han podido leer, no se escriben:"};
constexpr Texte3 Douteuses{u"Ces mesures sont douteuses, elles sont lues ainsi :",
                           u"These measures are doubtful, they are read like this:",
                           u"Estas medidas son dudosas, se leen así:"};
constexpr Texte3 Aucune{u"Aucun fichier de jauges n'est créé.", u"No gauge file is made.",
                        u"No se crea ningún fichero de correctores."};
constexpr Texte3 TexteReste{u"\rLe texte reçu du banc reste dans le fichier :\r",
                            u"\rThe text received from the bench stays in the file:\r",
                            u"\rEl texto recibido del banco queda en el fichero:\r"};
constexpr Texte3 SansDemande{u" caractères arrivés sans que la jauge suivante soit demandée",
                             u" characters that came before the following gauge was asked for",
                             u" caracteres llegados sin pedir la capacidad siguiente"};
constexpr Texte3 Rien{u"(rien)", u"(nothing)", u"(nada)"};
constexpr Texte3 Correcteur{u", correcteur ", u", corrector ", u", corrector "};
constexpr Texte3 NomCorrecteur{u"correcteur", u"corrector", u"corrector"};
constexpr Texte3 PrisPour{u" pris pour ", u" taken for ", u" tomado por "};
constexpr Texte3 Negatif{u"numéro de correcteur négatif", u"negative corrector number",
                         u"número de corrector negativo"};
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

/// texte with the names of its control characters. A text that is longer than any burst is cut.
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

/// The beginning of a row of the box.
QString Rang(int place)
{
    return QStringLiteral("    N° ") + QString::number(place);
}

/// True if a field is not exactly one number with blanks around it. A bench prints no exponent: an E stands there for a
/// garbled digit. The number read is then not the one that the bench has sent.
bool EstDouteux(const QString &champ)
{
    static const QRegularExpression nombre(QStringLiteral(R"(\A[ \t]*[+-]?[ \t]*(\d+\.?\d*|\.\d+)[ \t]*\z)"));
    return !nombre.match(champ).hasMatch() || EstTropGrand(champ);
}

/// The burst without the control characters and blanks before it. Columns count from there.
QString DepuisMarque(const QString &recue)
{
    const auto debut = std::find_if(recue.begin(), recue.end(), [](QChar c) { return c > u' '; });
    return recue.mid(debut - recue.begin());
}

/// The place in a burst of a second mark, where a further measure begins that was not asked for. -1 for none.
qsizetype SecondeMarque(const QString &salve)
{
    return salve.indexOf(QStringView(MarqueMesure), 1);
}

/// True if a second measure begins before the first one is complete: someone has pressed PRINT again at the bench.
bool EstCoupee(const QString &salve)
{
    const qsizetype seconde = SecondeMarque(salve);
    return seconde > 0 && seconde < std::max(ParamCom.TailleRecep, ColonneMode.debut);
}

/// What follows the measure in its burst. That is the second measure or, if the line has garbled its mark, what follows
/// the characters of a whole measure. A text that is shorter than a mark does not count.
QString DerriereMesure(const QString &salve)
{
    qsizetype debut = SecondeMarque(salve);
    if (debut < 0 && ParamCom.TailleRecep >= ColonneMode.debut)
        debut = ParamCom.TailleRecep;
    const QString suite = debut < 0 ? QString() : salve.mid(debut).simplified();
    return suite.size() < QStringView(MarqueMesure).size() ? QString() : suite;
}

/// True if the corrector is not the number that the burst holds: that number had decimals, or the operator gave the
/// question for another one up, which makes the corrector 0.
bool EstAutreCorrecteur(const QString &salve, const JaugeOutil &jauge)
{
    const double numero = Val(Champ(salve, ColonnesCorrecteur));
    return numero != std::nearbyint(numero) || (jauge.NumCorr == 0 && numero != 0);
}

/// The doubtful fields of a measure, and the values that they are taken for. If the measure broke off, all its fields
/// are doubtful.
QStringList DoutesChamps(const QString &salve, const JaugeOutil &jauge)
{
    const std::tuple<QString, Colonnes, QString, bool> champs[] = {
        {Texte(NomCorrecteur), ColonnesCorrecteur, QString::number(jauge.NumCorr), EstAutreCorrecteur(salve, jauge)},
        {QStringLiteral("Z"), ColonnesZ, TexteReel(jauge.JaugeZ), false},
        {QStringLiteral("X"), ColonnesX, TexteReel(jauge.JaugeX), false}};
    const bool coupee = EstCoupee(salve);
    QStringList doutes;
    if (coupee)
        doutes << Texte(Incomplete);
    for (const auto &[nom, colonnes, valeur, autre] : champs) {
        const QString champ = Champ(salve, colonnes);
        if (coupee || autre || EstDouteux(champ))
            doutes << nom + u' ' + EntreGuillemets(SansBlancs(champ)) + Texte(PrisPour) + valeur;
    }
    return doutes;
}

/// The doubts about a measure. Empty for a sound one.
QStringList Doutes(const QString &salve, const JaugeOutil &jauge)
{
    QStringList doutes = DoutesChamps(salve, jauge);
    if (jauge.NumCorr < 0)
        doutes << Texte(Negatif);
    if (jauge.ModeMesure != u'R' && jauge.ModeMesure != u'D')
        doutes << Texte(Lettre) + EntreGuillemets(QString(jauge.ModeMesure).trimmed()) + QStringLiteral(" : X") +
                      Texte(PrisPour) + TexteReel(jauge.JaugeX) + Texte(ParamMac.ModeX == 0 ? AuRayon : AuDiametre);
    if (const QString suite = DerriereMesure(salve); !suite.isEmpty())
        doutes << Texte(Suite) + EntreGuillemets(suite);
    return doutes;
}

/// Cuts a row that is too long for the box into lines. The further lines are indented: at the margin they would look
/// like the row of another tool.
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

/// A heading, as many of its rows as place lines hold, and a blank line.
QString Paragraphe(const Texte3 &entete, const QStringList &rangs, qsizetype place)
{
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

QString SansFichierJauges()
{
    return Texte(Aucune) + Texte(TexteReste) + CheminRecep();
}

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
    const auto avis = [this](qsizetype place) {
        return Paragraphe(NonLues, m_nonLues, place) + Paragraphe(Douteuses, m_douteuses, place);
    };
    constexpr qsizetype ecran = 12; // lines of a paragraph for which a screen has room
    const QString court = avis(ecran);
    const QString entier = avis(std::numeric_limits<qsizetype>::max() - 1);
    const QString sansFichier = Lignes.LigneMaxi == 0 ? Texte(Aucune) : SansFichierJauges();
    MsgBox((court + (lues == 0 ? sansFichier : QString())).trimmed(), Boite::Exclamation, Texte(Titre),
           court == entier ? QString() : entier.trimmed());
}
