#include "gauges/CommandesMac.h"

#include "donnees/Chemins.h"
#include "donnees/ParamMac.h"
#include "gauges/ChoixMac.h"
#include "gauges/ConfMac.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "shell/FrmPrinc.h"

namespace {

constexpr Texte3 RefuseTitre{u"Configuration machine", u"Machine configuration", u"Configuración máquina"};
constexpr Texte3 RefuseTexte{u"Ce fichier n'est pas une configuration machine :\r",
                             u"This file is no machine configuration:\r",
                             u"Este fichero no es una configuración máquina:\r"};

} // namespace

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
        ConfMac(frmPrinc, ParamMac.NomCompletMac).exec();
    } catch (const Erreur &) {
        // Cancelled, or no machine configuration: nothing opens.
    }
}

void ModifieConfMac(const QString &chemin)
{
    ParamMac.NomCompletMac = chemin;
    ParamMac.NomMac = NomSeul(chemin);
    try {
        LitMac(ParamMac.NomCompletMac);
        ConfMac(frmPrinc, ParamMac.NomCompletMac).exec();
    } catch (const Erreur &) {
        MsgBox(Texte(RefuseTexte) + chemin, Boite::Exclamation, Texte(RefuseTitre));
    }
}
