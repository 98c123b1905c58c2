#include "gauges/CreFicJauge.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "platform/base/Nombres.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/FichierTexte.h"
#include "transfer/FichierRecu.h"

#include <QApplication>
#include <QDate>

#include <cmath>

namespace {

/// An alarm of one axis.
struct Alarme
{
    Texte3 premiere; ///< first line
    Texte3 seconde;
    Texte3 titre;
};

constexpr Alarme AlarmeX{
    {u"Alarme Jauge en X!", u"Alarm gauge tool in X!", u"Alarma mide instrumentos en X!"},
    {u"Jauge en X du correcteur N°: ", u"Measure in X of corrector N°: ", u"Capacidad en X del corrector N°: "},
    {u"Alarme jauge en X", u"Alarm gauge tool in X", u"Alarma mide instrumentos en X"}};
constexpr Alarme AlarmeZ{
    {u"Alarme Jauge en Z!", u"Alarm gauge tool in Z!", u"Alarma mide instrumentos en Z!"},
    {u"Jauge en Z du correcteur N°: ", u"Measure in Z of corrector N°: ", u"Capacidad en Z del corrector N°: "},
    {u"Alarme jauge en Z", u"Alarm gauge tool in Z", u"Alarma mide instrumentos en Z"}};

constexpr double Micrometres = 1000; // in a millimetre

/// Rounds to whole micrometres, a tie to the even one, and gives them in mm. The calculation is done in double
/// precision; a gauge keeps single precision.
float EnMillimetres(double micrometres)
{
    return static_cast<float>(std::nearbyint(micrometres) / Micrometres);
}

/// The factor between the X of the bench, in mm, and the radius or diameter that the machine wants, in micrometres. A
/// letter that says neither radius nor diameter counts as the machine's own mode.
double FacteurX(const JaugeOutil &jauge)
{
    if (jauge.ModeMesure == u'D' && ParamMac.ModeX == 0)
        return Micrometres / 2;
    if (jauge.ModeMesure == u'R' && ParamMac.ModeX != 0)
        return Micrometres * 2;
    return Micrometres;
}

void NormaliseX(JaugeOutil &jauge)
{
    constexpr double surplus = 0.001; // micrometres: lifts a value that single precision holds slightly too low
    jauge.JaugeX = EnMillimetres(static_cast<double>(jauge.JaugeX) * FacteurX(jauge) + surplus);
}

void CorrigePoche(JaugeOutil &jauge)
{
    if (!ParamMac.EstTour() || ParamMac.DiffPoches == 0 || jauge.NumCorr % 2 != 0)
        return;
    const auto somme = static_cast<float>(static_cast<double>(jauge.JaugeX) + ParamMac.DiffPoches);
    jauge.JaugeX = EnMillimetres(static_cast<double>(somme) * Micrometres);
}

/// Warns of a value above its limit. The limit is compared in single precision like the measure: in double precision a
/// measure of 100.3 mm would be above a limit of 100.3.
void Verifie(float valeur, double maxi, int correcteur, const Alarme &alarme)
{
    const auto limite = static_cast<float>(maxi);
    if (!(valeur > limite))
        return;
    QApplication::beep();
    const QString troisieme =
        QString::number(correcteur) + QStringLiteral(" > à ") + TexteReel(limite) + QStringLiteral(" mm");
    MsgBox(Texte(alarme.premiere) + u'\r' + Texte(alarme.seconde) + u'\r' + troisieme, Boite::Critique,
           Texte(alarme.titre));
}

void Prepare(JaugeOutil &jauge)
{
    NormaliseX(jauge);
    CorrigePoche(jauge);
    Verifie(jauge.JaugeX, ParamMac.JaugeMaxiX, jauge.NumCorr, AlarmeX);
    jauge.JaugeZ = EnMillimetres(static_cast<double>(jauge.JaugeZ) * Micrometres);
    Verifie(jauge.JaugeZ, ParamMac.JaugeMaxiZ, jauge.NumCorr, AlarmeZ);
}

/// A field of a line: its letter or E parameter, and its value.
QString Champ(const char *nom, const QString &valeur)
{
    return QLatin1String(nom) + valeur;
}

QString LigneD(const JaugeOutil &jauge)
{
    const QString correcteur = Champ("D", QString::number(jauge.NumCorr));
    const QString x = TexteReel(jauge.JaugeX);
    const QString z = TexteReel(jauge.JaugeZ);
    if (!ParamMac.EstTour())
        return correcteur + Champ(" L", z) + Champ(" R", x);
    return correcteur + Champ(" X", x) + Champ(" Z", z) + Champ(" R", TexteReel(jauge.Rayon)) +
           Champ(" C", QString::number(jauge.Localisateur));
}

/// The corrector number with leading zeros up to three digits. A negative number gets two zeros, like any number below
/// 10.
QString Correcteur(int numero)
{
    const int zeros = numero < 10 ? 2 : numero < 100 ? 1 : 0;
    return QString(zeros, u'0') + QString::number(numero);
}

QString EnMicrometres(float millimetres)
{
    return TexteReel(millimetres * static_cast<float>(Micrometres));
}

QString LigneE(const JaugeOutil &jauge)
{
    const QString egal = Correcteur(jauge.NumCorr) + u'=';
    const QString x = egal + EnMicrometres(jauge.JaugeX);
    const QString z = egal + EnMicrometres(jauge.JaugeZ);
    if (!ParamMac.EstTour())
        return Champ("E50", z) + Champ(" E52", x);
    return Champ("E50", x) + Champ(" E51", z) + Champ(" E52", egal + EnMicrometres(jauge.Rayon)) +
           Champ(" E55", egal + QString::number(jauge.Localisateur));
}

/// The line that sets the dynamic correctors of a corrector to zero.
QString LigneRaz(const JaugeOutil &jauge)
{
    const QString zero = Correcteur(jauge.NumCorr) + QStringLiteral("=0");
    return ParamMac.EstTour() ? Champ("E53", zero) + Champ(" E54", zero) : Champ("E54", zero) + Champ(" E53", zero);
}

/// Puts the lines before the measures into Lignes. Returns the number of the next entry.
int Entete()
{
    if (!ParamMac.EnParametresE()) {
        Lignes(1) = u'%';
        return 2;
    }
    const QString date = QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy"));
    Lignes(1) = ParamMac.NumProgJauge + QStringLiteral(" (JAUGES OUTILS LE:") + date + u')';
    Lignes(2) = ParamMac.EstTour() ? QStringLiteral("(JAUGE X     JAUGE Z    RAYON   LOCALISATEUR)")
                                   : QStringLiteral("(JAUGE L     JAUGE R)");
    return 3;
}

/// The content of CheminRecep(); empty if it cannot be read.
QString SurDisque()
{
    QString texte;
    Saute([&texte] { texte = LitFichierTexte(CheminRecep()); });
    return texte;
}

void EcritJauges()
{
    const QString avant = SurDisque();
    const QString texte = TexteLignes();
    try {
        EcritFichierRecu(texte);
    } catch (const Erreur &erreur) {
        throw JaugesNonEcrites(erreur, texte + QStringLiteral("\r\n"), !avant.isEmpty() && avant == SurDisque());
    }
}

} // namespace

JaugesNonEcrites::JaugesNonEcrites(const Erreur &cause, const QString &texte, bool intact)
    : Erreur(cause)
    , m_texte(texte)
    , m_intact(intact)
{
}

void CreFicJauge()
{
    VideLignes();
    int k = Entete();
    for (int i = 1; i <= Jauges.NbJauges; ++i) {
        JaugeOutil &jauge = Jauges.Jauge(i);
        Prepare(jauge);
        Lignes(k++) = ParamMac.EnParametresE() ? LigneE(jauge) : LigneD(jauge);
        if (ParamMac.EnParametresE() && ParamMac.RazDynamique == 0)
            Lignes(k++) = LigneRaz(jauge);
    }
    if (ParamMac.EnParametresE())
        Lignes(k + 1) = QStringLiteral("M02");
    CalculeMaxi();
    EcritJauges();
    OuvreFichierRecu();
}
