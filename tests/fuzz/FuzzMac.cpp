#include "fuzz/Fuzz.h"

#include "gauges/ParamMac.h"
#include "platform/Erreur.h"

// A .mac file that can be read is the same after it was saved, loaded and saved again.
void Essaie(const QByteArray &octets)
{
    const QString chemin = Pose("Etrangere.mac", octets);
    ParamMac = {};
    try {
        LitMac(chemin);
        EcritMac(chemin);
    } catch (const Erreur &) {
        return;
    }
    const QByteArray enregistre = Relit(chemin);
    ParamMac = {};
    LitMac(chemin);
    EXIGE(ParamMac.NbCorrecteurs >= 0 && ParamMac.NbCorrecteurs <= 300);
    EcritMac(chemin);
    EXIGE(Relit(chemin) == enregistre);
}
