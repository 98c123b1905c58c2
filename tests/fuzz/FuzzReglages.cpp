#include "fuzz/Fuzz.h"

#include "donnees/Reglages.h"
#include "platform/base/Erreur.h"

// Settings that can be read are the same after they were saved, read and saved again; half of the bytes are the one
// file, half the other.
void Essaie(const QByteArray &octets)
{
    const QString ini = Pose("Dorvanel.ini", octets.left(octets.size() / 2));
    const QString cfg = Pose("Dorvanel.CFG", octets.mid(octets.size() / 2));
    QString dosRecep;
    try {
        LitIni();
        LitCfg(dosRecep);
        SauveIni();
        SauveCfg(dosRecep);
    } catch (const Erreur &) {
        return;
    }
    const QByteArray enregistres = Relit(ini) + Relit(cfg);
    try {
        LitIni();
        LitCfg(dosRecep);
    } catch (const Erreur &) {
        return; // a comma or a quote in a folder's name breaks its line in two
    }
    SauveIni();
    SauveCfg(dosRecep);
    EXIGE(Relit(ini).size() + Relit(cfg).size() <= enregistres.size());
}
