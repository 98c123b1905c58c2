#include "gauges/CommandesMac.h"

#include "gauges/ParamMac.h"
#include "locale/Langue.h"
#include "platform/CommonDialog.h"
#include "platform/Erreur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

namespace {

constexpr Texte3 FiltreMac{u"Fichiers paramètres (*.mac)|*.MAC", u"Files parameters (*.mac)|*.MAC",
                           u"Ficheros parámetros (*.mac)|*.MAC"};
constexpr Texte3 TitreChoix{u"Ouvrir une configuration machine jauges outils",
                            u"Open a configuration machine gauges tools ",
                            u"Abrir una configuración máquina Cabidas instrumentos"};

} // namespace

void DemandeFichierMac()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    try {
        dialogue.CancelError = true;
        dialogue.FileName.clear();
        dialogue.InitDir = DosConf;
        dialogue.DialogTitle = Texte(TitreChoix);
        dialogue.Filter = Texte(FiltreMac);
        dialogue.FilterIndex = 1;
        dialogue.Flags = CommonDialog::EcrasementDemande;
        dialogue.ShowOpen();
        NomCompletMac = dialogue.FileName;
        NomMac = dialogue.FileTitle;
        LitMac(NomCompletMac);
    } catch (const Erreur &) {
        dialogue.CancelError = false;
        throw;
    }
}
