#include "gauges/CommandesMac.h"

#include "gauges/ChoixMac.h"
#include "gauges/ConfMac.h"
#include "gauges/ParamMac.h"
#include "locale/Legendes.h"
#include "platform/Erreur.h"
#include "shell/Chemins.h"
#include "shell/FrmPrinc.h"

void Mn_CreeConfMac()
{
    AppliqueLangue();
    ParamMac = {};
    ConfMac(frmPrinc).exec();
}

void Mn_ModifConfMac()
{
    AppliqueLangue();
    try {
        DemandeFichierMac();
        ConfMac(frmPrinc, NomCompletMac).exec();
    } catch (const Erreur &) {
        // Cancelled, or no machine configuration: nothing opens.
    }
}

void ModifieConfMac(const QString &chemin)
{
    NomCompletMac = chemin;
    NomMac = NomSeul(chemin);
    try {
        LitMac(NomCompletMac);
        ConfMac(frmPrinc, NomCompletMac).exec();
    } catch (const Erreur &) {
        // No machine configuration.
    }
}
