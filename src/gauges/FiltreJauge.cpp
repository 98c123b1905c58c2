#include "gauges/FiltreJauge.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamMac.h"
#include "gauges/AvisMesures.h"
#include "gauges/CreFicJauge.h"
#include "gauges/Filtrage.h"
#include "gauges/JauTour.h"
#include "gauges/SalveBanc.h"
#include "locale/Langue.h"
#include "platform/base/Nombres.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "transfer/FichierRecu.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr Texte3 InterditTitre{u"Erreur de numéro de correcteur", u"Error of number of corrector",
                               u"Error de número de corrector"};
constexpr Texte3 InterditNumero{u"Attention numéro de correcteur ", u"Warning Number of corrector ",
                                u"Atención número de corrector "};
constexpr Texte3 InterditOutil{u"|   interdit pour l'outil Nø: ", u"|   interdict for the tool Nø: ",
                               u"|   prohibición para la instrumentos Nø: "};
constexpr Texte3 NouveauTitre{u"Valeur du correcteur", u"Value of the corrector", u"Valor del corrector"};
constexpr Texte3 NouveauTexte{u"Nouvelle valeur du correcteur (0 - ", u"New value of the corrector (0 - ",
                              u"Nuevo valor del corrector (0 - "};

/// Shows the hourglass as long as it lives.
class Sablier
{
public:
    Sablier() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sablier() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(Sablier)
};

/// Removes blank lines. Of two in a row the second stays: it moves to a place that the loop has already passed.
void ResserreLignes()
{
    CalculeMaxi();
    const auto fin = Lignes.begin() + Lignes.LigneMaxi;
    for (auto ligne = Lignes.begin(); ligne != fin; ++ligne) {
        if (EstBlanche(*ligne))
            std::move(ligne + 1, fin, ligne)->clear();
    }
    CalculeMaxi();
}

/// True if a whole number can be that of a corrector: not above NbCorrecteurs, and not below the range of 16 bits.
bool EstPermis(double numero)
{
    return numero <= ParamMac.NbCorrecteurs && numero >= std::numeric_limits<qint16>::min();
}

/// Tells the operator that a number is out of range, then asks him until one is in it. Cancelling gives 0.
double DemandeCorrecteur(double interdit, int outil)
{
    QApplication::beep();
    MsgBox(Texte(InterditNumero) + QString::number(interdit, 'f', 0) + Texte(InterditOutil) + QString::number(outil),
           Boite::Critique, Texte(InterditTitre));
    const QString maximum = TexteNombre(ParamMac.NbCorrecteurs);
    double numero = interdit;
    while (!EstPermis(numero))
        numero = std::nearbyint(Val(InputBox(Texte(NouveauTexte) + maximum + u')', Texte(NouveauTitre), maximum)));
    return numero;
}

/// Reads a measure from its burst. place: number of the burst in the session, from 1.
JaugeOutil LitMesure(const QString &salve, int place)
{
    JaugeOutil jauge;
    const double numero = std::nearbyint(Val(Champ(salve, ColonnesCorrecteur)));
    jauge.NumCorr = EnEntier(EstPermis(numero) ? numero : DemandeCorrecteur(numero, place));
    jauge.JaugeZ = static_cast<float>(Val(Champ(salve, ColonnesZ)));
    jauge.JaugeX = static_cast<float>(Val(Champ(salve, ColonnesX)));
    jauge.ModeMesure = Champ(salve, ColonneMode).leftJustified(1).front();
    return jauge;
}

/// Reads the measures into Jauge from the bursts that hold one, and tells the operator about the others. NbJauges
/// becomes the number of measures read, so that the gauge file holds nothing that the bench has not measured. recues:
/// the bursts as they came. enAttente: see FiltreJauge().
void LitMesures(const TableLignes &recues, qsizetype enAttente)
{
    AvisMesures avis;
    int lues = 0;
    for (int place = 1; place <= std::max(Lignes.LigneMaxi, Jauges.NbJauges) && lues < Jauges.NbJauges; ++place) {
        const QString &salve = Lignes(place);
        if (!EstMesure(salve)) {
            avis.NonLue(place, salve);
            continue;
        }
        JaugeOutil &jauge = Jauges.Jauge(++lues);
        jauge = LitMesure(salve, place);
        jauge.NonLuesAvant = place - lues;
        avis.Lue(place, recues(place), jauge);
    }
    if (enAttente >= QStringView(MarqueMesure).size()) // a shorter text is no measure, but the bell
        avis.NonDemandee(Jauges.NbJauges + 1, enAttente);
    Jauges.NbJauges = lues;
    avis.Montre(lues);
}

} // namespace

void FiltreJauge(qsizetype enAttente)
{
    std::optional<Sablier> sablier(std::in_place);
    const TableLignes recues = Lignes;
    Filtrage();
    LitMesures(recues, enAttente); // before the blank lines go: the entry is the number of the burst in the session
    ResserreLignes();
    if (Lignes.LigneMaxi == 0) {
        CreeFichierRecu(); // nothing but blanks has come
        OuvreFichierRecu();
    }
    if (Jauges.NbJauges == 0)
        return; // a text without a measure stays as it came
    EcritFichierRecu(TexteLignes());
    if (ParamMac.EstTour()) {
        sablier.reset();
        JauTour(FenetreAppelante()).exec();
    }
    CreFicJauge();
}
