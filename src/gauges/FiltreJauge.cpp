#include "gauges/FiltreJauge.h"

#include "gauges/CreFicJauge.h"
#include "gauges/Filtrage.h"
#include "gauges/Jauge.h"
#include "gauges/JauTour.h"
#include "gauges/Lignes.h"
#include "gauges/ParamMac.h"
#include "locale/Langue.h"
#include "platform/Boites.h"
#include "platform/Erreur.h"
#include "platform/FenetreAppelante.h"
#include "platform/Nombres.h"
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

constexpr char16_t Marque[] = u"TN:"; // what a line with a measure begins with

/// The hourglass, as long as it lives.
class Sablier
{
public:
    Sablier() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Sablier() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(Sablier)
};

/// Takes blank lines out. Of two in a row the second stays: it has moved to a place that is done.
void ResserreLignes()
{
    CalculeMaxi();
    const auto fin = Lignes.begin() + LigneMaxi + 1;
    for (auto ligne = Lignes.begin() + 1; ligne != fin; ++ligne) {
        if (EstBlanche(*ligne))
            std::move(ligne + 1, fin, ligne)->clear();
    }
    CalculeMaxi();
}

/// The numeric value of the columns of a burst, counted from 1; 0 where it is too short.
double Valeur(const QString &ligne, int colonne, int longueur)
{
    return Val(ligne.mid(colonne - 1, longueur));
}

/// Same, in the single precision of a gauge. Raises Depassement.
float ValeurSimple(const QString &ligne, int colonne, int longueur)
{
    const double valeur = Valeur(ligne, colonne, longueur);
    if (std::fabs(valeur) > static_cast<double>(std::numeric_limits<float>::max()))
        throw Erreur(Erreur::Depassement, QStringLiteral("Overflow"));
    return static_cast<float>(valeur);
}

/// True when a whole number can be a corrector's: up to NbCorrecteurs, and not below 16 bits.
bool EstPermis(double numero)
{
    return numero <= ParamMac.NbCorrecteurs && numero >= std::numeric_limits<qint16>::min();
}

/// Tells the operator that a number is out of range, then asks him until one fits. Cancelling gives 0.
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

/// Reads measure k from its line: the columns of the bench.
void LisMesure(const QString &ligne, int k)
{
    JaugeOutil &jauge = Jauge.at(static_cast<std::size_t>(k));
    const double numero = std::nearbyint(Valeur(ligne, 4, 5));
    jauge.NumCorr = EnEntier(EstPermis(numero) ? numero : DemandeCorrecteur(numero, k));
    jauge.JaugeZ = ValeurSimple(ligne, 25, 9);
    jauge.JaugeX = ValeurSimple(ligne, 50, 9);
    jauge.ModeMesure = ligne.mid(61, 1).leftJustified(1).front();
}

/// Each measure takes the next line that holds one; where there is none any more a measure stays as it was.
void LisMesures()
{
    auto ligne = Lignes.begin() + 1;
    const auto fin = ligne + LigneMaxi;
    for (int k = 1; k <= NbJauges; ++k) {
        ligne = std::find_if(ligne, fin, [](const QString &texte) { return texte.startsWith(QStringView(Marque)); });
        if (ligne == fin)
            return;
        LisMesure(*ligne++, k);
    }
}

} // namespace

void FiltreJauge()
{
    std::optional<Sablier> sablier(std::in_place);
    Filtrage();
    ResserreLignes();
    LisMesures();
    EcritFichierRecu(TexteLignes());
    if (ParamMac.EstTour()) {
        sablier.reset();
        JauTour(FenetreAppelante()).exec();
    }
    CreFicJauge();
}
