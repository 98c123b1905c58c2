#include "comconfig/ApplicationPort.h"

#include "comconfig/ParamCom.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"

namespace {

void DeplacePort(MSComm &controle, EnAttente &enAttente)
{
    const int ancien = controle.CommPort();
    const bool ouvert = controle.PortOpen();
    if (ouvert) {
        Tente(enAttente, [&] { controle.setPortOpen(false); });
        PortOuvert = false;
    }
    Tente(enAttente, [&] { controle.setCommPort(ParamCom.NumPort); });
    if (!enAttente && ouvert) {
        Tente(enAttente, [&] { controle.setPortOpen(true); });
        PortOuvert = controle.PortOpen();
    }
    if (enAttente)
        Saute([&] { controle.setCommPort(ancien); });
}

QString Reglage(const QString &parite)
{
    return QStringList{ParamCom.Vitesse, parite, ParamCom.BitsDonnees, ParamCom.BitsArret}.join(u',');
}

using Etape = void (*)(MSComm &controle);

// The order in which the control takes them.
constexpr Etape Reste[] = {
    [](MSComm &controle) { controle.setInputLen(ParamCom.NbCarLecture); },
    [](MSComm &controle) { controle.setNullDiscard(ParamCom.FiltreNul != 0); },
    [](MSComm &controle) { controle.setParityReplace(ParamCom.CarRemplace); },
    [](MSComm &controle) { controle.setInBufferSize(ParamCom.TailleTamponRecep); },
    [](MSComm &controle) { controle.setOutBufferSize(ParamCom.TailleTamponEmis); },
    [](MSComm &controle) { controle.setRTSEnable(ParamCom.LigneRTS != 0); },
    [](MSComm &controle) { controle.setDTREnable(ParamCom.LigneDTR != 0); },
    [](MSComm &controle) { controle.setRThreshold(ParamCom.SeuilRecep); },
    [](MSComm &controle) { controle.setSThreshold(ParamCom.SeuilEmis); },
    [](MSComm &controle) { controle.setHandshaking(ParamCom.ControleFlux); },
    [](MSComm &controle) { controle.setSettings(Reglage(ParamCom.Parite)); },
};

} // namespace

void AppliqueAuPort(EnAttente &enAttente)
{
    MSComm &controle = *frmPrinc->MSComm1;
    if (controle.CommPort() != ParamCom.NumPort) {
        DeplacePort(controle, enAttente);
        if (enAttente)
            return;
    }
    Tente(enAttente, [&] { controle.setSettings(Reglage(ParamCom.Parite.toUpper())); });
    if (!enAttente)
        Tente(enAttente, [&] { controle.setHandshaking(ParamCom.ControleFlux); });
}

void AppliqueResteAuPort()
{
    for (const Etape etape : Reste)
        Saute([&] { etape(*frmPrinc->MSComm1); });
}
