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
    static const QString fins[] = {QString(), QStringLiteral("\n"), QStringLiteral("\r"), QStringLiteral("\r\n")};
    Transfert.ChaineFinLigRecep = fins[Transfert.OptionFinLig];
}

void ChoisitFinLigneRecep()
{
    Transfert.OptionFinLig = ParamCom.FinLigRecep >= 0 && ParamCom.FinLigRecep <= 3 ? ParamCom.FinLigRecep : 0;
}

QString CheminRecep()
{
    return AjouteAntislash(Transfert.DossierRecep) + Transfert.NomFicRecep;
}
