#include "gauges/CommandesBanc.h"

#include "donnees/Jauge.h"
#include "donnees/Transfert.h"
#include "gauges/ChoixMac.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "shell/FrmPrinc.h"
#include "transfer/Rc_Fic.h"

void Mnu_RecepBanc()
{
    if (TransfertEnCours())
        return;
    AppliqueLangue();
    TypeTransfert = ReceptionBanc;
    try {
        DemandeFichierMac();
    } catch (const Erreur &) {
        return;
    }
    VideJauges();
    FinTransfert = 0;
    ForceRECEPT = 0;
    Rc_Fic(frmPrinc).exec();
}
