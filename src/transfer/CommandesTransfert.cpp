#include "transfer/CommandesTransfert.h"

#include "locale/Legendes.h"
#include "shell/FrmPrinc.h"
#include "transfer/Confirmation.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"
#include "transfer/Transfert.h"

namespace {

void Emet(ModeTransfert mode)
{
    AppliqueLangue();
    const int ancien = TypeTransfert;
    TypeTransfert = mode;
    if (!ConfirmeTransfert()) {
        TypeTransfert = ancien;
        return;
    }
    FinTransfert = 0;
    Em_Rc(frmPrinc).exec();
}

void Recoit(ModeTransfert mode)
{
    AppliqueLangue();
    FinTransfert = 0;
    ForceRECEPT = 0;
    TypeTransfert = mode;
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
    Recoit(ReceptionProgramme);
}

void Mnu_RecepJauge()
{
    Recoit(ReceptionJauges);
}
