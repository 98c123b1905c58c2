#include "fuzz/Fuzz.h"

#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "platform/base/Erreur.h"

namespace {

using Routine = void (*)(const QString &chemin);

/// A file that can be read is the same after it was saved, loaded and saved again.
void AllerRetour(const QByteArray &octets, Routine lit, Routine ecrit)
{
    const QString chemin = Pose("Etranger", octets);
    try {
        lit(chemin);
        ecrit(chemin);
    } catch (const Erreur &) {
        return;
    }
    const QByteArray enregistre = Relit(chemin);
    lit(chemin);
    ecrit(chemin);
    EXIGE(Relit(chemin) == enregistre);
}

} // namespace

// The same bytes as a .par and as a .mac file.
void Essaie(const QByteArray &octets)
{
    const Routine litPar = [](const QString &chemin) {
        ParamCom = {};
        LireFichierPar(chemin);
        BatirChaines();
    };
    const Routine litMac = [](const QString &chemin) {
        ParamMac = {};
        LitMac(chemin);
        EXIGE(ParamMac.NbCorrecteurs >= 0 && ParamMac.NbCorrecteurs <= 300);
    };
    AllerRetour(octets, litPar, EcrireFichierPar);
    AllerRetour(octets, litMac, EcritMac);
}
