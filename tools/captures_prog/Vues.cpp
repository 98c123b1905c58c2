#include "captures_prog/Vues.h"

#include "comconfig/CommandesConf.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/Prop.h"
#include "donnees/Chemins.h"
#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "gauges/ConfMac.h"
#include "gauges/JauTour.h"
#include "platform/dialogues/ChoixDossier.h"
#include "shell/Apropos.h"
#include "shell/CadreExplorateur.h"
#include "shell/Document.h"
#include "shell/Explorateur.h"
#include "shell/FrmAide.h"
#include "shell/FrmLangue.h"
#include "shell/FrmPrinc.h"
#include "shell/Impression.h"
#include "shell/Nouveau.h"
#include "shell/Police.h"
#include "transfer/Confirmation.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"

#include <QMenu>

namespace {

QString Exemple(const char *nom)
{
    return AjouteAntislash(DossierApplication()) + QLatin1String(nom);
}

void ChargeConfiguration()
{
    ConfDefaut(Exemple("Conf/Machine_simulee.par"));
}

QWidget *Principale(bool explorateur)
{
    Reglages.DosDefaut = Exemple("Programmes");
    if (frmPrinc->ExplorateurMontre())
        Mnu_AffichDOS();
    if (explorateur)
        Mnu_AffichDOS();
    frmPrinc->resize(860, 620);
    return frmPrinc;
}

QWidget *FenetreTransfert(ModeTransfert mode)
{
    Transfert.TypeTransfert = mode;
    Transfert.NomFicRecep = QStringLiteral("PIECE2.ISO");
    EtatConf.fiche = EtatConfiguration::Entiere;
    return new Em_Rc(frmPrinc);
}

/// A transfer dialog in the middle of a transfer, with everything that it can show.
QWidget *TransfertEnCours(ModeTransfert mode)
{
    auto *const fenetre = static_cast<Em_Rc *>(FenetreTransfert(mode));
    EtatConf.fiche = EtatConfiguration::Incomplete;
    for (QWidget *const passager :
         std::initializer_list<QWidget *>{fenetre->Progression, fenetre->Label3, fenetre->Label4, fenetre->Command7})
        passager->show();
    fenetre->Progression->setValue(42);
    return fenetre;
}

QWidget *Reception(ModeTransfert mode)
{
    Transfert.TypeTransfert = mode;
    ParamCom.TypeRecep = RecepLignes; // the way of receiving with every option of the dialog
    auto *const fenetre = new Rc_Fic(frmPrinc);
    fenetre->Text1->setText(QStringLiteral("PIECE2"));
    return fenetre;
}

QWidget *Proprietes(int onglet)
{
    ChargeConfiguration();
    ParamCom.Commentaire = QStringLiteral("Machine simulée, 9600 bauds");
    auto *const fenetre = new Prop(frmPrinc);
    fenetre->Nomme(EtatConf.NomConf);
    fenetre->Text1->setText(ParamCom.Commentaire);
    fenetre->SSTab1->setCurrentIndex(onglet);
    return fenetre;
}

QWidget *ConfigurationMachine(int typeMachine, int typeJauge)
{
    ParamMac = {};
    ParamMac.TypeMachine = typeMachine;
    ParamMac.TypeJauge = typeJauge;
    return new ConfMac(frmPrinc);
}

QWidget *Cadran(int tourelle)
{
    ParamMac = {};
    ParamMac.TypeTourelle = tourelle;
    Jauges.NbJauges = 3;
    Jauges.Jauge(1) = {7, 102.3604F, 51.0005F, 0, 0, u'D'};
    return new JauTour(frmPrinc);
}

/// A menu of the menu bar, opened.
QWidget *Menu(const char *nom)
{
    return frmPrinc->findChild<QMenu *>(QLatin1String(nom));
}

QWidget *Aide()
{
    Mnu_Aide();
    auto *const fenetre = frmPrinc->findChild<FrmAide *>();
    fenetre->resize(960, 660);
    return fenetre;
}

constexpr Vue Toutes[] = {
    {"frmPrinc", [] { return Principale(true); }},
    {"frmPrinc_seule", [] { return Principale(false); }},
    {"FrmLangue", []() -> QWidget * { return new FrmLangue(frmPrinc); }},
    {"Em_Rc_3_cours", [] { return TransfertEnCours(ReceptionProgramme); }},
    {"Em_Rc_1", [] { return FenetreTransfert(EmissionProgramme); }},
    {"Em_Rc_2", [] { return FenetreTransfert(EmissionJauges); }},
    {"Em_Rc_3", [] { return FenetreTransfert(ReceptionProgramme); }},
    {"Em_Rc_4", [] { return FenetreTransfert(ReceptionJauges); }},
    {"Rc_Fic_3", [] { return Reception(ReceptionProgramme); }},
    {"Rc_Fic_4", [] { return Reception(ReceptionJauges); }},
    {"Em_Rc_5", [] { return FenetreTransfert(ReceptionBanc); }},
    {"Rc_Fic_5", [] { return Reception(ReceptionBanc); }},
    {"Prop_0", [] { return Proprietes(0); }},
    {"Prop_1", [] { return Proprietes(1); }},
    {"Prop_2", [] { return Proprietes(2); }},
    {"FrmCaract", []() -> QWidget * { return new FrmCaract(ChaineLigne, QStringLiteral("CRCRLF"), frmPrinc); }},
    {"DosProg", []() -> QWidget * { return new DosProg(DossierProgrammes, frmPrinc); }},
    {"FrmConfDem", []() -> QWidget * { return new FrmConfDem(frmPrinc); }},
    {"ConfMac", [] { return ConfigurationMachine(0, 0); }},
    {"ConfMac_fraise", [] { return ConfigurationMachine(1, 1); }},
    {"JauTour", [] { return Cadran(0); }},
    {"JauTour_avant", [] { return Cadran(1); }},
    {"Apropos", []() -> QWidget * { return new Apropos(frmPrinc); }},
    {"FrmAide", Aide},
    {"Mnu_Fichier", [] { return Menu("Mnu_Fichier"); }},
    {"Mnu_Edition", [] { return Menu("Mnu_Edition"); }},
    {"Mnu_Com", [] { return Menu("Mnu_Com"); }},
    {"Mnu_Transfert", [] { return Menu("Mnu_Transfert"); }},
    {"Mnu_EmisFich", [] { return Menu("Mnu_EmisFich"); }},
    {"Mnu_Recep", [] { return Menu("Mnu_Recep"); }},
    {"Mnu_Mesure", [] { return Menu("Mnu_Mesure"); }},
    {"Mnu_Hlp", [] { return Menu("Mnu_Hlp"); }},
    {"Mnu_Language", [] { return Menu("Mnu_Language"); }},
};

constexpr VueModale ToutesModales[] = {
    {"CommonDialog_ouvrir", Mnu_Ouvrir},
    {"CommonDialog_enregistrer", Mnu_EnregistrerSous},
    {"CommonDialog_police", Mnu_Police},
    {"CommonDialog_imprimer", Mnu_Imprim},
    {"CommonDialog_imprimante", Mnu_ConfigIMP},
    {"CommonDialog_dossier", [] { ChoixDossier(frmPrinc, QStringLiteral("Choix du dossier"), DossierApplication()); }},
    {"MsgBox_question", Mnu_Nouveau},
    {"MsgBox_transfert", [] { ConfirmeTransfert(EmissionProgramme); }},
    {"MsgBox_aide", [] { Prop(frmPrinc).Command19->click(); }},
    {"MsgBox_aide_longue", [] { Prop(frmPrinc).Command13->click(); }},
    {"MsgBox_alarme", [] { ConfDefaut(Exemple("Conf/Absente.par")); }},
};

} // namespace

const std::span<const Vue> Vues = Toutes;
const std::span<const VueModale> VuesModales = ToutesModales;

void ChargeExemples()
{
    ChargeConfiguration();
    OuvreDocument(Exemple("Programmes/FRAISAGE.iso"));
}
