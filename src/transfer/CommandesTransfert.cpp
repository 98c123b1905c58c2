#include "transfer/CommandesTransfert.h"

#include "donnees/Transfert.h"
#include "locale/Legendes.h"
#include "shell/FrmPrinc.h"
#include "transfer/Confirmation.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"

namespace {

void Emet(ModeTransfert mode)
{
    if (TransfertEnCours())
        return;
    AppliqueLangue();
    if (!ConfirmeTransfert(mode))
        return;
    Transfert.FinTransfert = false;
    Transfert.TypeTransfert = mode;
    Em_Rc(frmPrinc).exec();
}

void OuvreReception(ModeTransfert mode)
{
    if (TransfertEnCours())
        return;
    AppliqueLangue();
    Transfert.FinTransfert = false;
    Transfert.ForceRECEPT = false;
    Transfert.TypeTransfert = mode;
    Rc_Fic(frmPrinc).exec();
}

} // namespace

void Mnu_EmisProgCN()
{
    Emet(EmissionProgramme);
}

void Mnu_EmisJauge()
{
    Emet(EmissionJauges);
}

void Mnu_RecepProg()
{
    OuvreReception(ReceptionProgramme);
}

void Mnu_RecepJauge()
{
    OuvreReception(ReceptionJauges);
}
