#include "transfer/Rc_Fic.h"

#include "comconfig/CommandesConf.h"
#include "comconfig/DosProg.h"
#include "donnees/Chemins.h"
#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Nombres.h"
#include "platform/controles/CouleurAlerte.h"
#include "platform/controles/EntreeOptions.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"
#include "transfer/Em_Rc.h"
#include "transfer/ImageTransfert.h"

#include <algorithm>

namespace {

/// What a mode shows: extension, title.
struct Mode
{
    ModeTransfert type;
    const char16_t *extension;
    Texte3 titre;
};

constexpr Mode Modes[] = {
    {ReceptionProgramme,
     u"iso",
     {u"Réception d'un programme CN", u"Receiving of a NC program", u"Recepción de un programa CN"}},
    {ReceptionJauges,
     u"jau",
     {u"Réception d'un fichier jauges outils", u"Receiving of a file gauges tools",
      u"Recepción de un fichero Cabidas instrumentos"}},
    {ReceptionBanc,
     nullptr, // the extension of the machine's configuration
     {u"Création d'un fichier jauges outils", u"Creation of a file gauges tools",
      u"Creación de un fichero Cabidas instrumentos"}},
};

const Mode *ModeChoisi()
{
    const auto *const mode = std::find_if(std::begin(Modes), std::end(Modes),
                                          [](const Mode &m) { return m.type == Transfert.TypeTransfert; });
    return mode == std::end(Modes) ? nullptr : mode;
}

constexpr Texte3 ExisteTitre{u"Fichier existant !", u"Existing file !", u"Fichero existente !"};
constexpr Texte3 ExisteFichier{u"Remplacer le fichier ", u"Replace the file ", u"Sustituir al fichero "};
constexpr Texte3 ExisteDossier{u"Dans le dossier ", u"In the directory ", u"En el directorio "};
constexpr Texte3 ExisteQuestion{u"Confirmez  ?", u"Confirm  ?", u"Confirme  ?"};

constexpr Texte3 DossierDeProgrammes{u"Choix du dossier de réception des Programmes CN",
                                     u"Choice of the directory of receiving of the Programs NC",
                                     u"Elección del expediente de recepción de los Programas CN"};
constexpr Texte3 DossierDeJauges{u"Choix du dossier de réception des Jauges Outils",
                                 u"Choice of the directory of receiving of the Gauges Tools",
                                 u"Elección del directorio de recepción de las Cabidas instrumentos"};

constexpr Texte3 ExtensionDouteuse{u"Extension vide ou à signes interdits : le fichier risque de ne pas se créer.",
                                   u"Extension empty or with forbidden signs: the file may not come about.",
                                   u"Extensión vacía o con signos prohibidos: el fichero puede no crearse."};

/// False for an extension that gives a file name which not every system takes.
bool ConvientAuFichier(const QString &extension)
{
    return !extension.isEmpty() && !extension.endsWith(u'.') && !extension.endsWith(u' ') &&
           std::none_of(extension.begin(), extension.end(),
                        [](QChar signe) { return QStringView(u"/\\:*?\"<>|").contains(signe); });
}

} // namespace

Rc_Fic::Rc_Fic(QWidget *parent, RoutineReception banc)
    : QDialog(parent)
    , m_banc(banc)
{
    setupUi(this);
    AppliqueLegendes(this);
    EntreAuChoix(this);
    FiltreNom(Text1);
    connect(Text1, &QLineEdit::textChanged, this,
            [this](const QString &texte) { Command2->setEnabled(!texte.isEmpty()); });
    QRadioButton *const options[] = {Option1_0, Option1_1, Option1_2, Option1_3};
    for (int i = 0; i < 4; ++i)
        connect(options[i], &QRadioButton::toggled, this,
                [i](bool choisi) { Transfert.OptionFinLig = choisi ? i : Transfert.OptionFinLig; });
    Combo1->setCompleter(nullptr); // an extension stays as it is typed
    connect(Combo1, &QComboBox::currentTextChanged, this, &Rc_Fic::Combo1_Change);
    AvisExtension->setMinimumHeight(AvisExtension->fontMetrics().lineSpacing());
    QPalette palette;
    palette.setColor(QPalette::WindowText, CouleurAlerte());
    AvisExtension->setPalette(palette);
    connect(Command1, &QPushButton::clicked, this, &Rc_Fic::Command1_Click);
    connect(Command3, &QPushButton::clicked, this, &Rc_Fic::Command3_Click);
    connect(Command2, &QPushButton::clicked, this, &Rc_Fic::Command2_Click);
    connect(Command4, &QPushButton::clicked, this, &Rc_Fic::Command4_Click);
    Form_Load();
    Form_Activate();
    Combo1_Change(Combo1->currentText());
}

void Rc_Fic::Form_Load()
{
    MontreFinLigne();
    QString &reception = Dossier();
    if (const auto applique = frmPrinc->DossierApplique()) {
        reception = *applique;
        AnnonceNomRepris(reception, windowTitle());
    }
    if (const Mode *const mode = ModeChoisi()) {
        Combo1->setCurrentText(mode->extension == nullptr ? ParamMac.ExtJauge : QString::fromUtf16(mode->extension));
        Combo1->setEnabled(mode->extension != nullptr);
    }
}

/// Any extension is taken; a doubtful one is told here, and not when the file is to be written.
void Rc_Fic::Combo1_Change(const QString &extension)
{
    AvisExtension->setText(ConvientAuFichier(extension) ? QString() : Texte(ExtensionDouteuse));
}

void Rc_Fic::MontreDossier()
{
    Label3->setText(DepuisDossierApplication(Dossier()));
}

void Rc_Fic::MontreFinLigne()
{
    ChoisitFinLigneRecep();
    QRadioButton *const options[] = {Option1_0, Option1_1, Option1_2, Option1_3};
    options[Transfert.OptionFinLig]->setChecked(true);
}

/// Shows what depends on the mode and the configuration, at first and whenever a dialog on top of this one has closed.
/// The extension is no part of it: Form_Load() offers one, and what the operator makes of it holds for a second try
/// too.
void Rc_Fic::Form_Activate()
{
    Label4->setText(ConfigurationEnClair());
    MontreDossier();
    if (const Mode *const mode = ModeChoisi())
        PoseTexte(this, mode->titre);
    Picture1->setPixmap(ImageTransfert());
    Frame5->setVisible(Transfert.TypeTransfert == ReceptionProgramme && ParamCom.TypeRecep != RecepFichier);
}

/// The reception folder that the mode uses.
QString &Rc_Fic::Dossier()
{
    return Transfert.TypeTransfert == ReceptionProgramme ? ParamCom.DosRecep : Reglages.DosJauge;
}

void Rc_Fic::Command1_Click()
{
    reject();
    frmPrinc->Text2->hide();
    frmPrinc->ActualiseFichiers();
}

void Rc_Fic::Command3_Click()
{
    const bool programmes = Transfert.TypeTransfert == ReceptionProgramme;
    DosProg dialogue(programmes ? DossierProgrammes : DossierJauges, this);
    MontreDossier(); // DosProg has replaced a folder that no longer exists
    PoseTexte(&dialogue, programmes ? DossierDeProgrammes : DossierDeJauges);
    connect(&dialogue, &DosProg::DossierChoisi, this, &Rc_Fic::MontreDossier);
    dialogue.exec();
    Form_Activate();
}

void Rc_Fic::Command2_Click()
{
    if (TransfertEnCours())
        return;
    const bool banc = Transfert.TypeTransfert == ReceptionBanc;
    if (banc)
        Jauges.NbJauges = 0;
    const QString extension = banc ? ParamMac.ExtJauge : Combo1->currentText();
    Transfert.NomFicRecep = (SansBlancs(Text1->text()) + u'.' + extension).toUpper();
    Transfert.DossierRecep = SansBlancs(Label3->text());
    if (FichierExiste(CheminRecep()) && !ConfirmeRemplacement())
        return;
    Em_Rc(this, m_banc).exec();
    if (Transfert.FinTransfert)
        accept();
    else
        Form_Activate();
}

bool Rc_Fic::ConfirmeRemplacement() const
{
    return Confirme(Texte(ExisteFichier) + Transfert.NomFicRecep + u'\r' + Texte(ExisteDossier) +
                        Transfert.DossierRecep + u'\r' + Texte(ExisteQuestion),
                    Boite::Question | Boite::SecondBouton, Texte(ExisteTitre));
}

void Rc_Fic::Command4_Click()
{
    ChargeAutreConfiguration([this] {
        Form_Activate();
        MontreFinLigne();
    });
}
