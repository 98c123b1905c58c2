#include "shell/Nouveau.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/dialogues/Boites.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/SauvegardeAuto.h"

namespace {

constexpr Texte3 NouveauTitre{u"Nouveau fichier ?", u"New file ?", u"Nuevo fichero ?"};
constexpr Texte3 NouveauTexte{u"Nouveau fichier", u"New file", u"Nuevo fichero"};
constexpr Texte3 NouveauQuestion{u"        Confirmez ? ", u"        Confirm ? ", u"        Confirme ? "};

} // namespace

void Mnu_Nouveau()
{
    AppliqueLangue();
    const bool nonEnregistre = Document.FichierModifie && !ProposeEnregistrement();
    if (!Confirme(Texte(NouveauTexte) + QStringLiteral("\r\n") + Texte(NouveauQuestion), Boite::Exclamation,
                  Texte(NouveauTitre)))
        return;
    if (nonEnregistre)
        RetientTexteFinal(true);
    frmPrinc->Text1->setText(QString());
    frmPrinc->Text1->show(); // a reception too large for the pane may have hidden it
    frmPrinc->Mnu_Annuler->setEnabled(false);
    TitreFenetre(NomNouveauDocument());
    Document.FichierModifie = false;
    Document.NomFichier = NomNouveauDocument();
    Document.NomRecu.clear();
}
