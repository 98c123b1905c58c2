#include "gauges/CommandesBanc.h"

#include "donnees/Jauge.h"
#include "donnees/Transfert.h"
#include "gauges/ChoixMac.h"
#include "gauges/ReceptionJauge.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "shell/FrmPrinc.h"
#include "transfer/Rc_Fic.h"

void Mnu_RecepBanc()
{
    if (TransfertEnCours())
        return;
    AppliqueLangue();
    Transfert.TypeTransfert = ReceptionBanc;
    try {
        DemandeFichierMac();
    } catch (const Erreur &) {
        return;
    }
    Jauges = {};
    Transfert.FinTransfert = false;
    Transfert.ForceRECEPT = false;
    Rc_Fic(frmPrinc, ReceptionJauge).exec();
}
