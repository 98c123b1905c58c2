#include "fuzz/Fuzz.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/Filtrage.h"
#include "gauges/FiltreJauge.h"
#include "platform/base/Erreur.h"
#include "platform/base/PageCode1252.h"
#include "platform/dialogues/Boites.h"

#include <QFileInfo>

#include <array>

namespace {

/// What the operator types for a corrector out of range, one after the other; the empty one cancels.
constexpr std::array Saisies = {"", "301", "-32769", "x", "1e309", "12,5", "-3", "300"};

} // namespace

// What a bench may send, up to the gauge file. The first two bytes choose the machine, what the operator types, and the
// number of measures.
void Essaie(const QByteArray &octets)
{
    if (octets.size() < 2)
        return;
    const std::size_t premiere = static_cast<unsigned char>(octets[0]) >> 2;
    // Drawing a box takes as long as a thousand measures.
    SuppleantBoites() = {
        [](auto &&...) { return Reponse::Ok; },
        [saisie = premiere](auto &&...) mutable { return QString::fromLatin1(Saisies[saisie++ % Saisies.size()]); }};
    Jauges = {};
    ParamMac = {};
    ParamMac.TypeMachine = 1; // a mill asks nothing at the dial
    ParamMac.TypeJauge = octets[0] & 1;
    ParamMac.ModeX = (octets[0] >> 1) & 1;
    Jauges.NbJauges = 1 + static_cast<unsigned char>(octets[1]) % 8;
    Transfert.DossierRecep = QFileInfo(Pose("JAUGES.JAU", {})).path();
    Transfert.NomFicRecep = QStringLiteral("JAUGES.JAU");
    CalculeLigne(TexteDe1252(octets.mid(2)));
    try {
        FiltreJauge();
    } catch (const Erreur &) {
    }
    Filtrage();
    for (int ligne = 1; ligne <= Lignes.LigneMaxi; ++ligne)
        for (const QChar caractere : Lignes(ligne))
            EXIGE(caractere >= u' ');
    VideLignes();
}
