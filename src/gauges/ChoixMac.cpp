#include "gauges/ChoixMac.h"

#include "donnees/ParamMac.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "platform/dialogues/CommonDialog.h"
#include "shell/FrmPrinc.h"

#include <QDir>
#include <QScopeGuard>

namespace {

constexpr Texte3 FiltreMac{u"Fichiers paramètres (*.mac)|*.MAC", u"Files parameters (*.mac)|*.MAC",
                           u"Ficheros parámetros (*.mac)|*.MAC"};
constexpr Texte3 TitreChoix{u"Ouvrir une configuration machine jauges outils",
                            u"Open a configuration machine gauges tools ",
                            u"Abrir una configuración máquina Cabidas instrumentos"};
constexpr Texte3 TitreEnregistrement{u"Enregistrer la configuration jauges outils",
                                     u"Record the configuration gauges tools",
                                     u"Registrar la configuración Cabidas instrumentos"};

/// Shows the file dialog for .mac files, which offers chemin first. Raises DialogueAnnule.
void Demande(void (CommonDialog::*montre)(), const Texte3 &titre, const QString &chemin)
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.PrepareFichier(Texte(titre), Texte(FiltreMac), Reglages.DosConf, chemin);
    dialogue.DefaultExt = QStringLiteral("mac");
    const auto remis = qScopeGuard([&dialogue] { dialogue.CancelError = false; });
    (dialogue.*montre)();
    ParamMac.NomCompletMac = dialogue.FileName;
    ParamMac.NomMac = dialogue.FileTitle;
}

} // namespace

void DemandeFichierMac()
{
    Demande(&CommonDialog::ShowOpen, TitreChoix, QString());
    LitMac(ParamMac.NomCompletMac);
}

void DemandeNomMac(const QString &chemin)
{
    QDir::setCurrent(Reglages.DosAppli);
    Demande(&CommonDialog::ShowSave, TitreEnregistrement, chemin);
}
