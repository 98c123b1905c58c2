#include "donnees/Transfert.h"

#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"

int TypeTransfert = 0;
int FinTransfert = 0;
int AnnuleRECEPT = 0;
int ForceRECEPT = 0;
QString NomFicRecep;
QString DossierRecep;
int OptionFinLig = 0;
QString ChaineFinLigRecep;

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
    ChaineFinLigRecep = fins[OptionFinLig];
}

void ChoisitFinLigneRecep()
{
    OptionFinLig = ParamCom.FinLigRecep >= 0 && ParamCom.FinLigRecep <= 3 ? ParamCom.FinLigRecep : 0;
}

QString CheminRecep()
{
    return AjouteAntislash(DossierRecep) + NomFicRecep;
}
