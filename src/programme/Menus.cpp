#include "programme/Menus.h"

#include "comconfig/CommandesConf.h"
#include "comconfig/FrmConfDem.h"
#include "gauges/CommandesBanc.h"
#include "gauges/CommandesMac.h"
#include "platform/controles/Clavier.h"
#include "platform/controles/Molette.h"
#include "platform/controles/UneLigne.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "platform/serie/MSComm.h"
#include "programme/Demarrage.h"
#include "programme/OuvreFichier.h"
#include "shell/AideEnLigne.h"
#include "shell/Apropos.h"
#include "shell/Document.h"
#include "shell/EditeurExterne.h"
#include "shell/Explorateur.h"
#include "shell/FrmAide.h"
#include "shell/FrmLangue.h"
#include "shell/FrmPrinc.h"
#include "shell/Impression.h"
#include "shell/MenuEdition.h"
#include "shell/Nouveau.h"
#include "shell/Police.h"
#include "shell/SauvegardeAuto.h"
#include "transfer/CommandesTransfert.h"
#include "transfer/EvenementsCom.h"
#include "transfer/PortCom.h"

namespace {

/// A command: its menu entry, its toolbar button (0: none), the routine that handles it.
struct Commande
{
    QAction *Ui_FrmPrinc::*entree;
    int bouton;
    void (*routine)();
};

constexpr Commande Commandes[] = {
    {&Ui_FrmPrinc::Mnu_Nouveau, 0, Mnu_Nouveau},
    {&Ui_FrmPrinc::Mnu_Ouvrir, 1, Mnu_Ouvrir},
    {&Ui_FrmPrinc::Mnu_EnregistrerSous, 2, Mnu_EnregistrerSous},
    {&Ui_FrmPrinc::Mnu_Police, 3, Mnu_Police},
    {&Ui_FrmPrinc::Mnu_EditProg, 4, Mnu_EditProg},
    {&Ui_FrmPrinc::Mnu_Imprim, 5, Mnu_Imprim},
    {&Ui_FrmPrinc::Mnu_ConfigIMP, 0, Mnu_ConfigIMP},
    {&Ui_FrmPrinc::Mnu_ConfigDemar, 0, Mnu_ConfigDemar},
    {&Ui_FrmPrinc::Mnu_AffichDOS, 15, Mnu_AffichDOS},
    {&Ui_FrmPrinc::Mnu_Quitter, 6, Mnu_Quitter},
    {&Ui_FrmPrinc::Mnu_Annuler, 0, Mnu_Annuler},
    {&Ui_FrmPrinc::Mnu_Couper, 0, Mnu_Couper},
    {&Ui_FrmPrinc::Mnu_Copier, 0, Mnu_Copier},
    {&Ui_FrmPrinc::Mnu_Coller, 0, Mnu_Coller},
    {&Ui_FrmPrinc::Mnu_Supprimer, 0, Mnu_Supprimer},
    {&Ui_FrmPrinc::Mnu_ChargeConf, 8, Mnu_ChargeConf},
    {&Ui_FrmPrinc::Mnu_CreConf, 0, Mnu_CreConf},
    {&Ui_FrmPrinc::Mnu_ModifConf, 0, Mnu_ModifConf},
    {&Ui_FrmPrinc::Mnu_FermePortCom, 0, Mnu_FermePortCom},
    {&Ui_FrmPrinc::Mnu_DosRecep, 0, Mnu_DosRecep},
    {&Ui_FrmPrinc::Mnu_EmisProgCN, 9, Mnu_EmisProgCN},
    {&Ui_FrmPrinc::Mnu_EmisJauge, 11, Mnu_EmisJauge},
    {&Ui_FrmPrinc::Mnu_RecepProg, 10, Mnu_RecepProg},
    {&Ui_FrmPrinc::Mnu_RecepJauge, 12, Mnu_RecepJauge},
    {&Ui_FrmPrinc::Mnu_RecepBanc, 13, Mnu_RecepBanc},
    {&Ui_FrmPrinc::Mn_CreeConfMac, 0, Mn_CreeConfMac},
    {&Ui_FrmPrinc::Mn_ModifConfMac, 0, Mn_ModifConfMac},
    {&Ui_FrmPrinc::Mnu_Aide, 16, Mnu_Aide},
    {&Ui_FrmPrinc::Mnu_Apropos, 17, Mnu_Apropos},
    {&Ui_FrmPrinc::Mnu_AideEnLigne, 0, Mnu_AideEnLigne},
    {&Ui_FrmPrinc::Mnu_Lang_0, 0, [] { Mnu_Lang(0); }},
    {&Ui_FrmPrinc::Mnu_Lang_1, 0, [] { Mnu_Lang(1); }},
    {&Ui_FrmPrinc::Mnu_Lang_2, 0, [] { Mnu_Lang(2); }},
};

} // namespace

void Branche()
{
    BrancheDocument();
    BrancheEdition();
    BrancheSauvegardeAuto();
    BrancheAide();
    TientUneLigne(frmPrinc);
    BrancheClavier(frmPrinc);
    RendLeClavier(frmPrinc);
    BrancheMolette(frmPrinc);
    for (const Commande &commande : Commandes) {
        QObject::connect(frmPrinc->*commande.entree, &QAction::triggered, frmPrinc, commande.routine);
        if (QAction *const bouton = frmPrinc->Bouton(commande.bouton))
            QObject::connect(bouton, &QAction::triggered, frmPrinc, commande.routine);
    }
    QObject::connect(frmPrinc->Mnu_Edition, &QMenu::aboutToShow, frmPrinc, Mnu_Edition);
    QObject::connect(frmPrinc->Mnu_Com, &QMenu::aboutToShow, frmPrinc, Mnu_Com);
    QObject::connect(frmPrinc->MSComm1, &MSComm::OnComm, frmPrinc, MSComm1_OnComm);
    QObject::connect(frmPrinc, &FrmPrinc::Form_Unload, frmPrinc, Form_Unload);
    QObject::connect(frmPrinc, &FrmPrinc::FichierDepose, frmPrinc, OuvreFichier);
}
