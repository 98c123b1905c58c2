#include "programme/Demarrage.h"

#include "comconfig/CommandesConf.h"
#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/serie/MSComm.h"
#include "shell/CheminsTenus.h"
#include "shell/Document.h"
#include "shell/Explorateur.h"
#include "shell/FrmLangue.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"
#include "shell/SauvegardeAuto.h"

#include <QCoreApplication>
#include <QTemporaryFile>

namespace {

/// The question about a changed text, at the end of the program.
struct QuestionFin
{
    Texte3 titre;
    Texte3 question;
};

constexpr QuestionFin EnQuittant{{u"Quitter l'éditeur de programmes CN",
                                  u"Leave the editor of program numerical control",
                                  u"Dejar al editor de programa controla numérico"},
                                 {u"            Enregistrer le fichier ? ", u"            Record the file ? ",
                                  u"            Registrar el fichero ? "}};
constexpr QuestionFin EnFermant{
    {u"Fermer le programme CN", u"close the program", u"Cerrar el programa"},
    {u"            Enregistrer le fichier ? ", u"            Save file ? ", u"            Registrar el fichero ? "}};
constexpr Texte3 FichierAvant{u"Fichier ", u"Modified file ", u"Fichero  "};
constexpr Texte3 FichierApres{u" modifié !", u" !", u" modificado !"};

constexpr Texte3 ConfirmationTitre{u"Quitter le programme", u"Leave the program", u"Dejar el programa"};
constexpr Texte3 ConfirmationTexte{u"Quitter Dorvanel\r   Confirmez  ?", u"Leave Dorvanel\r   Confirm  ?",
                                   u"Dejar Dorvanel\r   Confirme  ?"};

constexpr Texte3 DossierFermeTitre{u"Dossier des réglages", u"Folder of the settings", u"Carpeta de los ajustes"};
constexpr Texte3 DossierFermeTexte{u"Rien ne peut être écrit dans le dossier :\r%1\rVos réglages ne seront pas gardés.",
                                   u"Nothing can be written in the folder:\r%1\rYour settings will not be kept.",
                                   u"No se puede escribir nada en la carpeta:\r%1\rSus ajustes no se guardarán."};

void LitReglages()
{
    if (FichierExiste(CheminIni())) {
        LitIni();
        AppliqueLangueSysteme(); // for the buttons of boxes during the start
        return;
    }
    IniParDefaut();
    LangIndex = 0;
    FrmLangue dialogue;
    QObject::connect(&dialogue, &FrmLangue::LangueChoisie, AnnonceDossierPerdu);
    if (dialogue.exec() == QDialog::Rejected) // the settings will be written without a choice too
        AnnonceDossierPerdu();
    AppliqueLangue();
}

void DesactiveTransferts()
{
    frmPrinc->Mnu_Transfert->setEnabled(false);
    for (QAction *action : {frmPrinc->Mnu_EmisProgCN, frmPrinc->Mnu_EmisJauge, frmPrinc->Mnu_RecepProg,
                            frmPrinc->Mnu_RecepJauge, frmPrinc->Mnu_RecepBanc, frmPrinc->Mnu_EditProg})
        action->setEnabled(false);
}

void LitDossiers()
{
    if (FichierExiste(CheminCfg()))
        LitCfg(ParamCom.DosRecep);
    else
        CfgParDefaut(ParamCom.DosRecep);
}

/// Asks whether to save. Escape gives no answer: this is the last question, and a stray key must not lose the text.
bool DemandeEnregistrement(const QuestionFin &question)
{
    return Confirme(Texte(FichierAvant) + Document.NomFichier + Texte(FichierApres) + QStringLiteral("\r\n") +
                        Texte(question.question),
                    Boite::Exclamation | Boite::ChoixExige, Texte(question.titre));
}

} // namespace

void Form_Load()
{
    TientChemins({&ParamCom.DosRecep, &Reglages.DosJauge},
                 {&Document.NomFichier, &EtatConf.FicConf, &Reglages.DosDefaut, &Reglages.FicConfDefaut,
                  &Reglages.DosConf, &Reglages.EditeurCN});
    try {
        LitReglages();
    } catch (const Erreur &) {
        return;
    }
    DesactiveTransferts();
    Reglages.DosAppli = DossierApplication();
    Saute(LitDossiers);
    MontreLangue();
    if (Reglages.DosConf.isEmpty())
        Reglages.DosConf = DossierApplication();
    if (Reglages.OptDosDefaut == 0)
        Reglages.DosDefaut = DossierApplication();
    if (Reglages.OptConfDefaut == 1)
        Saute([] { ConfDefaut(Reglages.FicConfDefaut); });
    if (Reglages.OptExplorateur == 1)
        Saute(Mnu_AffichDOS);
    AppliqueLangue();
    Saute(SauveIni);
}

void AnnonceDossierFerme()
{
    // Tried with a temporary file, since settings that could not be read must not be overwritten. On a full disk the
    // file can be made and not filled, so one character is written.
    QTemporaryFile essai(AjouteAntislash(DossierApplication()) + QStringLiteral("XXXXXX"));
    if (!essai.open() || !essai.putChar(' ') || !essai.flush())
        MsgBox(Texte(DossierFermeTexte).arg(DossierApplication()), Boite::Exclamation, Texte(DossierFermeTitre));
}

void Mnu_Quitter()
{
    AppliqueLangue();
    const bool nonEnregistre = TexteModifie() && DemandeEnregistrement(EnQuittant) && !EnregistreSurPlace();
    if (!Confirme(Texte(ConfirmationTexte), Boite::Question | Boite::SecondBouton, Texte(ConfirmationTitre)))
        return;
    RetientTexteFinal(nonEnregistre);
    Saute([] { frmPrinc->MSComm1->setPortOpen(false); });
    frmPrinc->PortOuvert = false;
    QCoreApplication::exit(); // quit() would close the window first and ask about its text a second time
}

void Form_Unload()
{
    if (!TexteModifie())
        return;
    const bool enregistre = DemandeEnregistrement(EnFermant);
    RetientTexteFinal(enregistre && !EnregistreSurPlace());
    if (!enregistre)
        Document.FichierModifie = false;
}
