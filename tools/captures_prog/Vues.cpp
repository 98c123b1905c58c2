#include "captures_prog/Vues.h"

#include "comconfig/CommandesConf.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "gauges/ConfMac.h"
#include "gauges/Jauge.h"
#include "gauges/JauTour.h"
#include "gauges/ParamMac.h"
#include "locale/FrmLangue.h"
#include "shell/Apropos.h"
#include "shell/Chemins.h"
#include "shell/Document.h"
#include "shell/Explorateur.h"
#include "shell/FrmAide.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"
#include "transfer/Transfert.h"

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
    DosDefaut = Exemple("Programmes");
    if (frmPrinc->ExplorateurMontre())
        Mnu_AffichDOS();
    if (explorateur)
        Mnu_AffichDOS();
    frmPrinc->resize(860, 620);
    return frmPrinc;
}

QWidget *Transfert(ModeTransfert mode)
{
    TypeTransfert = mode;
    NomFicRecep = QStringLiteral("PIECE2.ISO");
    return new Em_Rc(frmPrinc);
}

QWidget *Reception(ModeTransfert mode)
{
    TypeTransfert = mode;
    ParamCom.TypeRecep = RecepLignes; // the one with every option of the dialog
    auto *const fenetre = new Rc_Fic(frmPrinc);
    fenetre->Text1->setText(QStringLiteral("PIECE2"));
    return fenetre;
}

QWidget *Proprietes(int onglet)
{
    ChargeConfiguration();
    auto *const fenetre = new Prop(frmPrinc);
    fenetre->Nomme(NomConf);
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
    NbJauges = 3;
    Jauge[1].NumCorr = 7;
    return new JauTour(frmPrinc);
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
    {"Em_Rc_1", [] { return Transfert(EmissionProgramme); }},
    {"Em_Rc_2", [] { return Transfert(EmissionJauges); }},
    {"Em_Rc_3", [] { return Transfert(ReceptionProgramme); }},
    {"Em_Rc_4", [] { return Transfert(ReceptionJauges); }},
    {"Rc_Fic_3", [] { return Reception(ReceptionProgramme); }},
    {"Rc_Fic_4", [] { return Reception(ReceptionJauges); }},
    {"Em_Rc_5", [] { return Transfert(ReceptionBanc); }},
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
};

} // namespace

const std::span<const Vue> Vues = Toutes;

void ChargeExemples()
{
    ChargeConfiguration();
    OuvreDocument(Exemple("Programmes/FRAISAGE.iso"));
}
