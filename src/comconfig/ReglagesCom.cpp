#include "comconfig/ReglagesCom.h"

#include "donnees/ParamCom.h"
#include "platform/serie/MSComm.h"

#include <QStringList>

namespace {

constexpr EtapeReglage Etapes[] = {
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
    [](MSComm &controle) { controle.setSettings(TexteReglage(ParamCom.Parite)); },
};

} // namespace

std::span<const EtapeReglage> EtapesReglage()
{
    return Etapes;
}

QString TexteReglage(const QString &parite)
{
    return QStringList{ParamCom.Vitesse, parite, ParamCom.BitsDonnees, ParamCom.BitsArret}.join(u',');
}
