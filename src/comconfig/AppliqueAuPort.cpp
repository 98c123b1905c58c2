#include "comconfig/AppliqueAuPort.h"

#include "comconfig/ReglagesCom.h"
#include "donnees/ParamCom.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"

namespace {

void DeplacePort(MSComm &controle, ErreurEnAttente &enAttente)
{
    const int ancien = controle.CommPort();
    const bool ouvert = controle.PortOpen();
    if (ouvert) {
        Tente(enAttente, [&] { controle.setPortOpen(false); });
        frmPrinc->PortOuvert = false;
    }
    Tente(enAttente, [&] { controle.setCommPort(ParamCom.NumPort); });
    if (!enAttente && ouvert) {
        Tente(enAttente, [&] { controle.setPortOpen(true); });
        frmPrinc->PortOuvert = controle.PortOpen();
    }
    if (enAttente)
        Saute([&] { controle.setCommPort(ancien); });
}

} // namespace

void AppliqueAuPort(ErreurEnAttente &enAttente)
{
    MSComm &controle = *frmPrinc->MSComm1;
    if (controle.CommPort() != ParamCom.NumPort) {
        DeplacePort(controle, enAttente);
        if (enAttente)
            return;
    }
    Tente(enAttente, [&] { controle.setSettings(TexteReglage(ParamCom.Parite.toUpper())); });
    if (!enAttente)
        Tente(enAttente, [&] { controle.setHandshaking(ParamCom.ControleFlux); });
}

void AppliqueResteAuPort()
{
    for (const EtapeReglage etape : EtapesReglage())
        Saute([&] { etape(*frmPrinc->MSComm1); });
}
