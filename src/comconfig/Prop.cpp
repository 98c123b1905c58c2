#include "comconfig/Prop.h"

#include "comconfig/AidesProp.h"
#include "comconfig/AppliqueAuPort.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/TextesConf.h"
#include "comconfig/VueProp.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "locale/Legendes.h"
#include "locale/TextesErreur.h"
#include "platform/controles/EntreeOptions.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/controles/GardePlaces.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/fichiers/Lanceur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"

#include <QAbstractItemView>
#include <QDir>
#include <QEvent>

namespace {

using U = Ui_Prop;

constexpr Texte3 TitreNomme{u"Propriétés et configuration de la communication - Fichier : ",
                            u"Properties and configuration of the communication - File : ",
                            u"Propiedades y configuración de la comunicación - Fichero : "};
constexpr Texte3 TitreNouveau{u"Propriétés et configuration de la communication - Fichier : Nouveau",
                              u"Properties and configuration of the communication - File: New",
                              u"Propiedades y configuración de la comunicación - Fichero: Nuevo"};
constexpr Texte3 Nouveau{u"Nouveau", u"New", u"Nuevo"};
constexpr Texte3 TitreEnregistre{u"Enregistrer la configuration de communication",
                                 u"Save a configuration of communication",
                                 u"Registrar la configuración de comunicación"};
constexpr char16_t TitreBoites[] = u"Dorvanel Pro";
constexpr Texte3 FinPerdue{
    u"Le fichier est enregistré, mais cette fin de transfert contient le caractère 17 ou 19 (XON, XOFF),\r"
    u"que le contrôle de flux XOn/XOff prend pour lui : elle n'arrive jamais, et une réception ne finirait pas.\r"
    u"Choisir une autre fin de transfert, comme EOT, ici et sur la machine, ou le contrôle de flux RTS/CTS.",
    u"The file is saved, but this end of transfer holds the character 17 or 19 (XON, XOFF),\r"
    u"which the flow control XOn/XOff takes for itself: it never arrives, and a reception would not end.\r"
    u"Choose another end of transfer, such as EOT, here and at the machine, or the flow control RTS/CTS.",
    u"El fichero está registrado, pero este final de transferencia contiene el carácter 17 o 19 (XON, XOFF),\r"
    u"que el control de flujo XOn/XOff toma para sí: no llega nunca, y una recepción no terminaría.\r"
    u"Elegir otro final de transferencia, como EOT, aquí y en la máquina, o el control de flujo RTS/CTS."};

constexpr char16_t TitreEditeur[] = u"Choix de l'éditeur de programmes CN";
constexpr char16_t FiltreEditeur[] = u"Fichiers EXE |*.exe|Fichiers COM |*.com|Fichiers BAT |*.bat|Fichiers PIF |*.pif";
constexpr char16_t FiltreSansExtension[] = u"|*|*.*";

/// A button that opens the chooser of characters, its chain, and the chooser's title.
struct EditionChaine
{
    QPushButton *U::*bouton;
    TypeChaine type;
    Texte3 titre;
};

constexpr EditionChaine Editions[] = {{&U::Command20,
                                       ChaineTransfert,
                                       {u"Affecter un caratère ou une chaîne de caratères de fin de transfert",
                                        u"Affect a caratère or a chain of caratères of end of transfer",
                                        u"Afectar del caratère o una cadena de caratères de final de transferencia"}},
                                      {&U::Command21,
                                       ChaineLigne,
                                       {u"Affecter un caratère ou une chaîne de caratères de fin de ligne",
                                        u"Affect a caratère or a chain of caratères of end of line",
                                        u"Afectar del caratère o una cadena de caratères de final de línea"}},
                                      {&U::Command22,
                                       ChaineDebut,
                                       {u"Affecter un caratère ou une chaîne de caratères en début de programme",
                                        u"Affect a caratère or a chain of caratères at the beginning of program",
                                        u"Afectar del caratère o una cadena de caratères al principio de programa "}}};

/// A button that opens the choice of a reception folder, and that dialog's title.
struct ChoixReception
{
    QPushButton *U::*bouton;
    TypeDossier type;
    Texte3 titre;
};

constexpr char16_t DossierCN[] = u"Choix du dossier de réception des Programmes CN";
constexpr char16_t DossierBanc[] = u"Choix du dossier de réception des Jauges Outils";

constexpr ChoixReception Receptions[] = {{&U::Command16,
                                          DossierProgrammes,
                                          {DossierCN, u"Selection of the repertory of reception of the Programs NC",
                                           u"Selección del directorio de recepción de los Programas CN"}},
                                         {&U::Command2, DossierProgrammes, {DossierCN, DossierCN, DossierCN}},
                                         {&U::Command3, DossierJauges, {DossierBanc, DossierBanc, DossierBanc}}};

void MontreErreur(const Erreur &erreur)
{
    MsgBox(TexteErreurDetaille(erreur), Boite::Exclamation, QString::fromUtf16(TitreBoites));
}

} // namespace

Prop::Prop(QWidget *parent)
    : QDialog(parent)
    , CommonDialog1(new CommonDialog(this))
{
    setupUi(this);
    AppliqueLegendes(this);
    EntreAuChoix(this);
    GardePlaces({LabelFinTrans, Command20, LabelFinLigne, Command21, Label18, Text8});
    RemplitListes(*this);
    BrancheOptions(*this);
    BrancheCommandes();
    BrancheChaines();
    BrancheDossiers();
    BrancheAides(*this);
    Form_Load();
    Form_Activate();
    Valide();
}

void Prop::BrancheCommandes()
{
    for (QLineEdit *const boite : {Text2, Text4, Text5, Text6, Text7, Text8})
        FiltreChiffres(boite);
    for (QObject *const regarde : std::initializer_list<QObject *>{cboPort, cboPort->view()})
        regarde->installEventFilter(this);
    connect(SSTab1, &QTabWidget::currentChanged, this, [this] {
        if (auto *const boite = qobject_cast<QLineEdit *>(focusWidget()))
            boite->selectAll(); // the tab has given it the focus, with the caret inside the number
    });
    connect(cmdOK, &QPushButton::clicked, this, &Prop::cmdOK_Click);
    for (QPushButton *const enregistre : {Command1, Command17})
        connect(enregistre, &QPushButton::clicked, this, &Prop::Command1_Click);
    for (QPushButton *const ferme : {cmdCancel, Command18, Command4})
        connect(ferme, &QPushButton::clicked, this, &Prop::reject);
    connect(Command5, &QPushButton::clicked, this, &Prop::Command5_Click);
}

/// The chooser's label is taken over however it was closed, since it belongs to the codes.
void Prop::BrancheChaines()
{
    for (const EditionChaine &edition : Editions)
        connect(this->*edition.bouton, &QPushButton::clicked, this, [this, &edition] {
            QString &libelle = ParamCom.*Chaines[edition.type].libelle;
            FrmCaract dialogue(edition.type, libelle, this);
            PoseTexte(&dialogue, edition.titre);
            dialogue.exec();
            libelle = dialogue.Label1->text();
            Form_Activate();
        });
}

void Prop::BrancheDossiers()
{
    for (const ChoixReception &choix : Receptions)
        connect(this->*choix.bouton, &QPushButton::clicked, this, [this, &choix] {
            DosProg dialogue(choix.type, this);
            PoseTexte(&dialogue, choix.titre);
            connect(&dialogue, &DosProg::DossierApplique, this, [this] { MontreDossiers(*this); });
            dialogue.exec();
            Form_Activate();
        });
}

void Prop::Form_Load()
{
    MontreDossiers(*this);
    MontreChoixInitiaux(*this);
}

/// Called when the window becomes active, also after a dialog that it opened has closed.
void Prop::Form_Activate()
{
    ParamDefaut(*this);
}

void Prop::NommeNouvelle()
{
    PoseTexte(Label6, Nouveau);
    PoseTexte(this, TitreNouveau);
}

void Prop::Nomme(const QString &nom)
{
    Label6->setText(nom);
    PoseTexte(this, TitreNomme, nom);
}

void Prop::LimiteAuxDossiers()
{
    SSTab1->setCurrentWidget(editeur);
    for (QWidget *const onglet : {fraSettings, divers})
        SSTab1->setTabEnabled(SSTab1->indexOf(onglet), false);
}

/// Gives the boxes whose caption is their frame's title that title as accessible name.
void Prop::changeEvent(QEvent *evenement)
{
    if (evenement->type() == QEvent::LanguageChange)
        cboSpeed->setAccessibleName(Frame1->title());
    QDialog::changeEvent(evenement);
}

bool Prop::eventFilter(QObject *objet, QEvent *evenement)
{
    const bool ouverte = evenement->type() == QEvent::Show && objet != cboPort;
    if (ouverte || evenement->type() == QEvent::ToolTip)
        DecritPorts(*this);
    return QDialog::eventFilter(objet, evenement);
}

void Prop::cmdOK_Click()
{
    const auto refus = NombreTropGrand(*this, false);
    ErreurEnAttente erreur = PrendControles(*this);
    AppliqueAuPort(erreur);
    if (erreur) {
        MontreErreur(*erreur);
        if (refus)
            VaA(refus->boite);
        return;
    }
    BatirChaines();
    if (!EtatConf.NomConf.isEmpty())
        MontreDonnee(frmPrinc->Label4, EtatConf.NomConf);
    MontreDonnee(frmPrinc->Label6, ParamCom.Commentaire);
    AppliqueResteAuPort();
    Valide();
    if (EtatConf.fiche == EtatConfiguration::EnAttente)
        EtatConf.fiche = EtatConfiguration::Entiere;
}

/// Saves under a name. A number that the file cannot hold is refused before anything is read from the controls. When
/// the operator cancels, or when the file cannot be written, the command ends without a message.
void Prop::Command1_Click()
{
    if (const auto refus = NombreTropGrand(*this, true)) {
        MsgBox(refus->raison, Boite::Exclamation, QString::fromUtf16(TitreBoites));
        VaA(refus->boite);
        return;
    }
    PrendControles(*this);
    PrendTransferts(*this);
    Saute([this] {
        QDir::setCurrent(Reglages.DosAppli);
        CommonDialog1->PrepareFichier(Texte(TitreEnregistre), Texte(FiltrePar), Reglages.DosConf, Label6->text());
        CommonDialog1->ShowSave();
        EtatConf.FicConf = CommonDialog1->FileName;
        EtatConf.NomConf = CommonDialog1->FileTitle;
        EcrireFichierPar(EtatConf.FicConf);
        Valide();
        Nomme(EtatConf.NomConf);
        AnnoncePertes();
    });
}

/// Warns of letters that the file cannot keep, and of an end of transfer that will never be received.
void Prop::AnnoncePertes()
{
    const QString titre = QString::fromUtf16(TitreBoites);
    AnnonceNomRepris(ParamCom.DosRecep, titre);
    AnnonceSaisiePerdue(ParamCom.Commentaire + ParamCom.LibDebProg + ParamCom.LibFinLig + ParamCom.LibFinTrans, titre);
    if (FinTransfertPerdue())
        MsgBox(Texte(FinPerdue), Boite::Exclamation, titre);
}

/// What the record holds now is no change that closing would leave unapplied.
void Prop::Valide()
{
    m_validee = ParamCom;
}

void Prop::done(int resultat)
{
    m_validee.DosRecep = ParamCom.DosRecep; // a choice of folder holds at once, and does not concern the machine
    const bool sue = ParamCom == m_validee && ChainesAJour();
    if (!sue && EtatConf.fiche == EtatConfiguration::Entiere)
        EtatConf.fiche = EtatConfiguration::EnAttente;
    QDialog::done(resultat);
}

/// Puts the keyboard into the box of a refused number.
void Prop::VaA(QLineEdit *boite)
{
    SSTab1->setCurrentWidget(divers);
    boite->setFocus();
    boite->selectAll();
}

/// When "Dorvanel.CFG" cannot be written the operator is told, and the editor holds for this run.
void Prop::Command5_Click()
{
    QString filtre = QString::fromUtf16(FiltreEditeur);
    if (ProgrammesSansExtension())
        filtre += QString::fromUtf16(FiltreSansExtension);
    CommonDialog1->PrepareFichier(QString::fromUtf16(TitreEditeur), filtre);
    try {
        CommonDialog1->ShowOpen();
        Reglages.EditeurCN = CommonDialog1->FileName;
        Label12->setText(Reglages.EditeurCN);
        AnnonceNomPerdu(Reglages.EditeurCN, LigneNom::Citee, QString::fromUtf16(TitreBoites));
        AnnonceCfgPerdu(ParamCom.DosRecep, QString::fromUtf16(TitreBoites));
        SauveCfg(ParamCom.DosRecep);
    } catch (const Erreur &erreur) {
        if (erreur.Numero() != Erreur::DialogueAnnule)
            MsgBox(TexteNonEnregistre(erreur), Boite::Exclamation, QString::fromUtf16(TitreBoites));
    }
}
