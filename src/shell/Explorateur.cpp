#include "shell/Explorateur.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/Chemins.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

namespace {

constexpr Texte3 BulleFerme{u"Afficher l'explorateur de fichiers", u"View explorer files",
                            u"Indicar el explorador de ficheros"};
constexpr Texte3 BulleOuvert{u"Fermer l'explorateur de fichiers", u"Close explorer files",
                             u"Cerrar el explorador de ficheros"};

} // namespace

void Mnu_AffichDOS()
{
    AppliqueLangue();
    const bool montre = frmPrinc->Frame1->isHidden();
    if (montre && DosDefaut.isEmpty())
        DosDefaut = DossierApplication();
    frmPrinc->MontreExplorateur(montre);
    const QString bulle = Texte(montre ? BulleOuvert : BulleFerme);
    if (!bulle.isNull())
        frmPrinc->Bouton(15)->setToolTip(bulle);
}
