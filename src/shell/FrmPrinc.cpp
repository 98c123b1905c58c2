#include "shell/FrmPrinc.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/controles/GardePlaces.h"
#include "platform/controles/Icone.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/serie/MSComm.h"
#include "shell/CadreExplorateur.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QToolButton>

FrmPrinc *frmPrinc = nullptr;
namespace {

using namespace std::chrono_literals;

constexpr Texte3 PortOuvertTexte{u"Port Ouvert", u"Open Port", u"Port Abierto"};
constexpr Texte3 PortFermeTexte{u"Port Fermé", u"Closed Port", u"Port Ferrado"};

constexpr Texte3 AllumeeTexte{u" : actif", u": on", u": activo"};
constexpr Texte3 EteinteTexte{u" : inactif", u": off", u": inactivo"};

// The icons of the toolbar buttons, from position 1 on. Each is the icon of the menu entry with the same command.
constexpr const char *IconesBoutons[] = {"Mnu_Ouvrir",     "Mnu_EnregistrerSous",
                                         "Mnu_Police",     "Mnu_EditProg",
                                         "Mnu_Imprim",     "Mnu_Quitter",
                                         nullptr,          "Mnu_ChargeConf",
                                         "Mnu_EmisProgCN", "Mnu_RecepProg",
                                         "Mnu_EmisJauge",  "Mnu_RecepJauge",
                                         "Mnu_RecepBanc",  nullptr,
                                         "Mnu_AffichDOS",  "Mnu_Aide",
                                         "Mnu_Apropos"};

QIcon IconeProgramme(const char *nom)
{
    return Icone(QStringLiteral(":/icones/%1").arg(QLatin1String(nom)));
}

int Couleur(bool active)
{
    return active ? Lampe::Verte : Lampe::Rouge;
}

/// The path of the dragged file, or "" when it is more than one or not on this PC: the window holds one program.
QString CheminTire(const QMimeData &donnees)
{
    const QList<QUrl> adresses = donnees.urls();
    return adresses.size() == 1 ? QDir::toNativeSeparators(adresses[0].toLocalFile()) : QString();
}

} // namespace

/// Links the icons, which the linker would otherwise leave in their library.
static void PrendIcones()
{
    Q_INIT_RESOURCE(icones);
}

FrmPrinc::FrmPrinc()
    : MSComm1(new MSComm(this))
    , CommonDialog1(new CommonDialog(this))
{
    PrendIcones();
    setupUi(this);
    setWindowTitle(QStringLiteral("Dorvanel Pro version " DORVANEL_VERSION));
    setContextMenuPolicy(Qt::NoContextMenu); // no menu that hides the toolbar
    NommeControles();
    PoseIcones();
    GardePlaces({Etat});
    connect(&UpdateTimer, &QTimer::timeout, this, &FrmPrinc::UpdateTimer_Timer);
    connect(&Timer2, &QTimer::timeout, this, &FrmPrinc::Timer2_Timer);
    UpdateTimer.start(1000ms);
    Timer2.start(5000ms);
    DitLampes();
    for (RichTextBox *const volet : {Text1, Text2})
        volet->setFormatCopie(QStringLiteral("application/x-dorvanel-programme"));
    Text1->setFocus(); // otherwise the explorer's first button would have the keyboard
    frmPrinc = this;
}

FrmPrinc::~FrmPrinc()
{
    frmPrinc = nullptr;
}

void FrmPrinc::NommeControles()
{
    UpdateTimer.setObjectName(QStringLiteral("UpdateTimer"));
    Timer2.setObjectName(QStringLiteral("Timer2"));
    MSComm1->setObjectName(QStringLiteral("MSComm1"));
    const auto actions = Toolbar1->actions();
    for (QAction *action : actions) {
        if (auto *const bouton = qobject_cast<QToolButton *>(Toolbar1->widgetForAction(action)))
            bouton->setObjectName(action->objectName());
    }
}

void FrmPrinc::PoseIcones()
{
    // The icon of every window. Delayed, because the system asks for many sizes: they are drawn while it places the
    // window.
    QTimer::singleShot(0, this, [] { QApplication::setWindowIcon(IconeProgramme("Dorvanel")); });
    int position = 0;
    for (const char *const icone : IconesBoutons) {
        if (QAction *const bouton = Bouton(++position))
            bouton->setIcon(IconeProgramme(icone));
    }
}

QAction *FrmPrinc::Bouton(int position) const
{
    QAction *const action = Toolbar1->actions().value(position - 1);
    return action == nullptr || action->isSeparator() ? nullptr : action;
}

void FrmPrinc::ActiveFichier(bool active)
{
    for (QAction *action : {Mnu_EditProg, Mnu_EnregistrerSous, Mnu_Imprim, Bouton(2), Bouton(4), Bouton(5)})
        action->setEnabled(active);
}

void FrmPrinc::ActiveEmission(bool active)
{
    for (QAction *action : {Mnu_EmisProgCN, Mnu_EmisJauge, Bouton(9), Bouton(11)})
        action->setEnabled(active);
}

void FrmPrinc::ActiveReception()
{
    Mnu_Transfert->setEnabled(true);
    for (QAction *action : {Mnu_RecepProg, Mnu_RecepJauge, Mnu_RecepBanc, Bouton(10), Bouton(12), Bouton(13)})
        action->setEnabled(true);
}

CadreExplorateur *FrmPrinc::CreeExplorateur()
{
    Frame1 = new CadreExplorateur(Centre);
    milieu->insertWidget(0, Frame1);
    milieu->setStretchFactor(1, 1);
    milieu->setSizes({m_largeurExplorateur, 1}); // the pane takes the rest
    connect(milieu, &QSplitter::splitterMoved, this, &FrmPrinc::setLargeurExplorateur);
    AppliqueLegendes(this);
    return Frame1;
}

bool FrmPrinc::ExplorateurMontre() const
{
    return Frame1 != nullptr && !Frame1->isHidden();
}

std::optional<QString> FrmPrinc::DossierApplique() const
{
    if (Frame1 == nullptr || !Frame1->CheckDOS->isChecked() || Frame1->FolderTreeview1->SelectedFolder().isEmpty())
        return std::nullopt;
    return Frame1->FolderTreeview1->SelectedFolder();
}

void FrmPrinc::ActualiseFichiers()
{
    if (Frame1 != nullptr)
        Frame1->File1->Refresh();
}

void FrmPrinc::MontreExplorateur(bool montre)
{
    Frame1->setVisible(montre);
    Mnu_AffichDOS->setChecked(montre);
    Bouton(15)->setChecked(montre);
}

void FrmPrinc::MontreEtat(const QString &message)
{
    Etat->setText(QStringLiteral("État : ") + message);
    Etat->show();
    // A running timer is not restarted: the time of the first message counts.
    if (!Timer2.isActive())
        Timer2.start();
}

void FrmPrinc::MontrePort(bool ouvert, const QString &texte)
{
    shpPortOpen->setFillColor(Couleur(ouvert));
    const QString mots = texte.isNull() ? TexteChoisi(ouvert ? PortOuvertTexte : PortFermeTexte) : texte;
    if (!mots.isNull())
        lblPortOpen->setText(mots);
    DitLampes();
}

void FrmPrinc::EteintTransfert()
{
    shpSend->setFillColor(Lampe::Rouge);
    shpReceive->setFillColor(Lampe::Rouge);
}

void FrmPrinc::UpdateTimer_Timer()
{
    MontrePort(PortOuvert);
    if (!PortOuvert)
        EteintTransfert();
    shpRTS->setFillColor(Couleur(PortOuvert && MSComm1->RTSEnable()));
    shpCTS->setFillColor(Couleur(MSComm1->CTSHolding()));
    const bool porteuse = MSComm1->CDHolding();
    shpCD->setFillColor(Couleur(porteuse));
    if (porteuse)
        PortOuvert = true;
}

void FrmPrinc::Timer2_Timer()
{
    Etat->setText(QStringLiteral("État : "));
    Timer2.stop();
    Etat->hide();
}

void FrmPrinc::DitLampes()
{
    const QString allumee = Texte(AllumeeTexte);
    const QString eteinte = Texte(EteinteTexte);
    const std::pair<Lampe *, QLabel *> paires[] = {{shpPortOpen, lblPortOpen}, {shpCD, lblCD},
                                                   {shpRTS, lblRTS},           {shpCTS, lblCTS},
                                                   {shpSend, lblSend},         {shpReceive, lblReceive}};
    for (const auto &[lampe, nom] : paires) {
        // The words beside the port's lamp already tell its state.
        const bool dit = lampe == shpPortOpen;
        lampe->setTextes(nom->text(), nom->text() + (dit ? QString() : allumee),
                         nom->text() + (dit ? QString() : eteinte));
    }
}

void FrmPrinc::changeEvent(QEvent *evenement)
{
    QMainWindow::changeEvent(evenement);
    if (evenement->type() != QEvent::LanguageChange)
        return;
    // The new captions say that the port is closed.
    if (PortOuvert)
        MontrePort(true);
    else
        DitLampes();
}

void FrmPrinc::closeEvent(QCloseEvent *evenement)
{
    Q_EMIT Form_Unload();
    evenement->accept();
}

void FrmPrinc::dragEnterEvent(QDragEnterEvent *evenement)
{
    // Nothing is dropped while a dialog is open: a transfer may be sending the text of the pane.
    evenement->setAccepted(QApplication::activeModalWidget() == nullptr &&
                           QFileInfo(CheminTire(*evenement->mimeData())).isFile());
    evenement->setDropAction(Qt::CopyAction);
}

/// Accepts a copy only, so that the other program keeps its file even when it offers to move it. An X display uses the
/// last answer before the drop.
void FrmPrinc::dragMoveEvent(QDragMoveEvent *evenement)
{
    evenement->setDropAction(Qt::CopyAction);
}

/// Opens the file after the drop has ended: a question must not block the program that the file comes from.
void FrmPrinc::dropEvent(QDropEvent *evenement)
{
    const QString chemin = CheminTire(*evenement->mimeData());
    evenement->setDropAction(Qt::CopyAction);
    evenement->accept();
    QMetaObject::invokeMethod(
        this, [this, chemin] { Q_EMIT FichierDepose(chemin); }, Qt::QueuedConnection);
}
