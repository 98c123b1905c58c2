#include "donnees/Transfert.h"

#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"

EtatTransfert Transfert;

namespace {

int transferts = 0;

} // namespace

bool TransfertEnCours()
{
    return transferts > 0;
}

EnTransfert::EnTransfert()
{
    ++transferts;
}

EnTransfert::~EnTransfert()
{
    --transferts;
}

void ChoisitChaineFinLigRecep()
{
    const QString fins[] = {QString(), CaracteresFinLigne(FinLigLf), CaracteresFinLigne(FinLigCr),
                            CaracteresFinLigne(FinLigCrLf)};
    Transfert.ChaineFinLigRecep = fins[Transfert.OptionFinLig];
}

void ChoisitFinLigneRecep()
{
    Transfert.OptionFinLig = ParamCom.FinLigRecep >= FinRecueAucune && ParamCom.FinLigRecep <= FinRecueCrLf
                                 ? ParamCom.FinLigRecep
                                 : FinRecueAucune;
}

QString CheminRecep()
{
    return AjouteAntislash(Transfert.DossierRecep) + Transfert.NomFicRecep;
}
