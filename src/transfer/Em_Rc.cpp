#include "transfer/Em_Rc.h"

#include "comconfig/CommandesConf.h"
#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/controles/Clavier.h"
#include "platform/controles/GardePlaces.h"
#include "platform/controles/UnClic.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CentreFeuille.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Apercu.h"
#include "transfer/Bilan.h"
#include "transfer/Confirmation.h"
#include "transfer/Emission.h"
#include "transfer/FichierRecu.h"
#include "transfer/ImageTransfert.h"
#include "transfer/PortCom.h"
#include "transfer/Reception.h"
#include "transfer/ReceptionFichier.h"
#include "transfer/TextesReception.h"

#include <QScrollBar>
#include <QShowEvent>
#include <QStyle>

#include <algorithm>

namespace {

constexpr Texte3 Annuler{u"&Annuler", u"&Cancel", u"&Cancelar"};
constexpr Texte3 AnnulerBanc{u"&Annuler", u"&&Cancel", u"&Cancelar"};
constexpr Texte3 LigneEcho{u"Ligne reçue / émise", u"Received / emitted line", u"Línea recibida / emitida"};
constexpr Texte3 CaractereEcho{u"Caractère émis / reçu", u"Emitted / received character",
                               u"Carácter emitido / recibido"};

/// What a mode shows: title, instructions for the control of the machine, status.
struct Mode
{
    ModeTransfert type;
    Texte3 titre;
    Texte3 consignes;
    Texte3 statut;
};

constexpr Texte3 PuisCliquez{u"Puis cliquez sur le bouton < Emission... >", u"Then click on the button < Emission... >",
                             u"Luego presionan el botón < Emisión... >"};

constexpr Texte3 AttenteReception{u"En attente de réception", u"On standby of receive", u"En espera de recepción"};

constexpr Mode Modes[] = {
    {EmissionProgramme,
     {u"Emission d'un programme CN", u"Sending of a program", u"Emisión de un programa"},
     {u"\rSur CN faire une RàZ\r\rValider le mode Chargement Programme\r\rAppuyer sur Départ de Cycle",
      u"\rOn machine to make Restoring\r\rValidate the Chargement mode Programs\r\rSupport on Departure of Cycle",
      u"\rSobre máquina hacer un a Entrega a Cero\r\rValidar el método Cargamento Programa\r\r"
      u"Apoyar en Salida de Ciclo"},
     PuisCliquez},
    {EmissionJauges,
     {u"Emission des jauges outils", u"Sending of the gauges tools", u"Emisión de las Cabidas instrumentos"},
     {u"\rSur CN faire une RàZ\r\rValider le mode Chargement des Jauges Outils\r\rAppuyer sur Départ de Cycle",
      u"\rOn machine to make Restoring\r\rValidate the Loading mode of the Gauges Tools\r\r"
      u"Support on Departure of Cycle",
      u"\rSobre máquina hacer un a Entrega a Cero\r\rValidar el método Cargamento de las Cabidas instrumentos\r"
      u"Apoyar en Salida de Ciclo"},
     PuisCliquez},
    {ReceptionProgramme,
     {u"Réception d'un programme CN", u"Receiving of a program", u"Recepción de un programa"},
     {u"\rSur CN faire une RàZ\r\rValider le mode Déchargement Programme\r\rAppuyer sur Départ de Cycle",
      u"\rOn machine to make Restoring\r\rValidate the Déchargement mode Programs\r\rSupport on Departure of Cycle",
      u"\rSobre máquina hacer un a Entrega a Cero\r\rValidar el método Descarga Programa\r\r"
      u"Apoyar en Salida de Ciclo"},
     AttenteReception},
    {ReceptionJauges,
     {u"Réception des jauges outils", u"Receiving of the gauges tools", u"Recepción de las Cabidas instrumentos"},
     {u"\rSur CN faire une RàZ\r\rValider le mode Déchargement des Jauges Outils\r\rAppuyer sur Départ de Cycle",
      u"\rOn machine to make Restoring\r\rValidate the Unloading mode of the Gauges Tools\r\r"
      u"Support on Departure of Cycle",
      u"\rSobre máquina hacer un a Entrega a Cero\r\rValidar el método Descarga de las Cabidas instrumentos\r\r"
      u"Apoyar en Salida de Ciclo"},
     AttenteReception},
    {ReceptionBanc,
     {u"Réception des jauges outils à partir du banc", u"Receiving of the gauges tools starting from the bench ",
      u"Recepción de las Cabidas instrumentos a partir del banco"},
     {u"\rPrérégler le premier outil\r\r", u"\rPreset the first tool\r\r",
      u"\rPreestablecer la primer instrumentos\r\r"},
     {u"En attente de réception Correcteur N°1", u"On standby of reception Corrector N°1",
      u"En espera de recepción Corrector N°1"}},
};

constexpr Texte3 ForcerTitre{u"Forcer la fin de réception", u"Force the end of receiving",
                             u"Forzar el final de recepción"};
constexpr Texte3 ForcerTexte{
    u"Fermer la réception et enregistrer les lignes reçues !\rConfirmez la fin de réception ?",
    u"Close the receiving and record the received lines !\rConfirm the end of receiving ?",
    u"Cerrar la recepción y registrar las líneas recibidas !\rConfirme el final de recepción ?"};

constexpr Texte3 ArreterTitre{u"Transfert en cours", u"Transfer under way", u"Transferencia en curso"};
constexpr Texte3 ArreterTexte{u"Le transfert n'est pas terminé !\rConfirmez l'arrêt du transfert ?",
                              u"The transfer is not finished !\rConfirm the stop of the transfer ?",
                              u"¡La transferencia no ha terminado!\r¿Confirma la parada de la transferencia?"};

} // namespace

Em_Rc::Em_Rc(QWidget *parent, RoutineReception banc)
    : QDialog(parent)
    , m_banc(banc)
{
    setupUi(this);
    AppliqueLegendes(this);
    // The buttons must not move when one of these is hidden, nor when the status is empty.
    GardePlaces({Progression, Label3, Label4, Frame2, BilanSigne});
    Label2->setMinimumHeight(Label2->fontMetrics().lineSpacing());
    PrepareBilan();
    // A double click would send a short program twice, and at the bench it would ask for two tools if a measure waits.
    UnClic(Command2);
    UnClic(Command5);
    connect(Command1, &QPushButton::clicked, this, &Em_Rc::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &Em_Rc::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &Em_Rc::Command3_Click);
    connect(Command4, &QPushButton::clicked, this, [this] { done(Rejected); });
    connect(Command5, &QPushButton::clicked, this, &Em_Rc::Command5_Click);
    connect(Command6, &QPushButton::clicked, this, &Em_Rc::Command6_Click);
    connect(Command7, &QPushButton::clicked, this, &Em_Rc::Command7_Click);
}

/// Form_Activate() runs once, when the dialog comes onto the screen, and not when the operator comes back from a
/// message box or another program. A reception that it starts runs from the event loop, when the dialog can be seen.
void Em_Rc::showEvent(QShowEvent *evenement)
{
    QDialog::showEvent(evenement);
    if (evenement->spontaneous())
        return;
    Form_Activate();
    adjustSize(); // the mode has hidden some of its parts
    CentreFeuille(this);
    MontreApercu(m_vue); // last, since it cuts its text to the width of the dialog
}

void Em_Rc::Form_Activate()
{
    if (Transfert.FinTransfert)
        return;
    PoseTexte(Command1, Annuler);
    PoseTexte(Command4, AnnulerBanc);
    PoseTexte(Label3, LigneEcho);
    PoseTexte(Label4, CaractereEcho);
    m_vue.MontreEcho();
    m_vue.Consigne({});
    m_vue.EffaceStatut();
    MontreConfigurationChoisie();
    MontreMode();
}

/// The line Bilan has a fixed height, enough for most transfers, so that nothing moves. A longer text can be scrolled,
/// with the keys too. Errors of the line are shown there as they come, since the main window shows them only for a
/// moment.
void Em_Rc::PrepareBilan()
{
    constexpr int lignes = 4;
    BilanPlace->setFixedHeight(lignes * Bilan->fontMetrics().lineSpacing());
    connect(BilanPlace->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int plusBas) { BilanPlace->setFocusPolicy(plusBas > 0 ? Qt::TabFocus : Qt::NoFocus); });
    const int cote = 3 * Bilan->fontMetrics().height() / 2;
    BilanSigne->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(cote, cote));
    connect(frmPrinc->MSComm1, &MSComm::OnComm, this, [this] {
        if (TransfertEnCours() && frmPrinc->MSComm1->CommEvent() >= EvenementPort::PremiereFaute)
            MontreFautes(m_vue);
    });
}

void Em_Rc::MontreMode()
{
    const auto *const mode = std::find_if(std::begin(Modes), std::end(Modes),
                                          [](const Mode &m) { return m.type == Transfert.TypeTransfert; });
    if (mode == std::end(Modes))
        return;
    const bool banc = mode->type == ReceptionBanc;
    const bool emission = EstEmission(mode->type); // a reception starts by itself
    PoseTexte(this, mode->titre);
    m_vue.Consigne(Texte(mode->consignes) + (banc ? Texte(TouchesBanc) : QString()));
    m_vue.Statut(mode->statut);
    const QPixmap image = ImageTransfert();
    Picture1->setPixmap(image);
    Picture2->setPixmap(image);
    Command2->setVisible(emission);
    Command7->setVisible(!emission && !banc);
    Frame1->setVisible(!banc);
    Frame4->setVisible(banc);
    Frame2->setVisible(emission);
    (banc ? Command5 : Command2)->setDefault(true);
    if (emission)
        Command2->setFocus();
    else
        QMetaObject::invokeMethod(this, &Em_Rc::CommenceReception, Qt::QueuedConnection);
}

RoutineReception Em_Rc::Routine() const
{
    constexpr RoutineReception receptions[] = {ReceptionLigne, ReceptionCar, ReceptionFichier};
    if (Transfert.TypeTransfert == ReceptionBanc)
        return m_banc;
    const int type = ParamCom.TypeRecep;
    return type >= 0 && type < static_cast<int>(std::size(receptions)) ? receptions[type] : nullptr;
}

void Em_Rc::CommenceReception()
{
    const EnTransfert enTransfert;
    setFocus(); // not on the cancel button, which a second stroke would press when the box has closed
    if (!ConfirmeTransfert(Transfert.TypeTransfert) || !ConfirmeApercu(m_vue)) {
        done(Rejected);
        return;
    }
    DebuteBilan();
    if (const auto routine = Routine())
        routine(m_vue);
    RetireDemande();
    if (Transfert.TypeTransfert == ReceptionBanc)
        return;
    Command1->setFocus();
    Command7->setEnabled(false); // the reception is over
    RetientTouches(this);
}

void Em_Rc::MontreConfigurationChoisie()
{
    Label5->setText(ConfigurationEnClair());
}

void Em_Rc::Command1_Click()
{
    if (Transfert.FinTransfert && ParamCom.TypeRecep != RecepFichier)
        OuvreFichierRecu();
    done(Rejected);
}

void Em_Rc::Command2_Click()
{
    if (!ConfirmeApercu(m_vue))
        return;
    const EnTransfert enTransfert;
    DebuteBilan();
    // A second click would start a second sending inside the first, so the button is disabled. Its focus would then
    // pass to the cancel button, where a second stroke of the space bar would end the sending.
    setFocus();
    Command2->setEnabled(false);
    if (ParamCom.TypeEnvoi == EnvoiLignes)
        EnvoiFich_Lig_Lig(m_vue);
    else
        EnvoiFich_FinFich(m_vue);
    RetireDemande();
    Command2->setEnabled(true);
    Command2->setFocus();
    RetientTouches(this); // Enter held down would send a short program again and again
}

void Em_Rc::Command3_Click()
{
    ChargeAutreConfiguration([this] {
        MontreConfigurationChoisie();
        ChoisitFinLigneRecep();
    });
    // A file that could not be read to its end has changed the configuration too.
    m_vue.MontreEcho();
    MontreApercu(m_vue);
}

void Em_Rc::Command5_Click()
{
    Jauges.JaugeSuivante = true;
}

void Em_Rc::Command6_Click()
{
    Jauges.FinJauges = true;
    accept();
}

void Em_Rc::Command7_Click()
{
    // The reception waits until the box is answered. No receive event may start the gathering on top of the box.
    const MSComm::SansEvenements sansEvenements(*frmPrinc->MSComm1);
    setFocus(); // a second stroke would ask again
    if (Confirme(Texte(ForcerTexte), Boite::Question | Boite::SecondBouton, Texte(ForcerTitre)))
        Transfert.ForceRECEPT = true;
}

/// Escape and the close box are easily hit by mistake, and a transfer that has ended cannot be resumed; so they ask
/// first, unless the port is closed: nothing has passed then, and nothing will. The buttons say what they do, and do
/// not ask. The machine goes on sending while the question is open, and the routine goes on receiving.
void Em_Rc::reject()
{
    if (TransfertEnCours() && frmPrinc->MSComm1->PortOpen())
        DemandeSansAttendre(*this, Texte(ArreterTexte), Boite::Question | Boite::SecondBouton, Texte(ArreterTitre),
                            [this] { done(Rejected); });
    else
        done(Rejected);
}

void Em_Rc::done(int resultat)
{
    // Every way of closing cancels but one: the end of a bench reception.
    if (resultat == Rejected)
        Transfert.AnnuleRECEPT = true;
    RetireDemande();
    Form_Unload();
    QDialog::done(resultat);
    if (Transfert.FinTransfert)
        frmPrinc->ActualiseFichiers();
}

void Em_Rc::Form_Unload()
{
    frmPrinc->EteintTransfert();
    CoupePortCOM(m_vue);
    if (ParamCom.TypeRecep == RecepFichier)
        frmPrinc->Text2->hide();
}
