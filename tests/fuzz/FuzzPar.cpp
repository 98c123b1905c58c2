#include "fuzz/Fuzz.h"

#include "comconfig/ParamCom.h"
#include "platform/Erreur.h"

// A .par file that can be read is the same after it was saved, loaded and saved again.
void Essaie(const QByteArray &octets)
{
    const QString chemin = Pose("Etrangere.par", octets);
    ParamCom = {};
    try {
        LireFichierPar(chemin);
        BatirChaines();
        EcrireFichierPar(chemin);
    } catch (const Erreur &) {
        return;
    }
    const QByteArray enregistre = Relit(chemin);
    ParamCom = {};
    LireFichierPar(chemin);
    EcrireFichierPar(chemin);
    EXIGE(Relit(chemin) == enregistre);
}
