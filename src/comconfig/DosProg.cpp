#include "comconfig/DosProg.h"

#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/Dossiers.h"
#include "shell/CadreExplorateur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"

namespace {

constexpr Texte3 AbsentTitre{u"Erreur", u"Error", u"Error"};
constexpr Texte3 AbsentProgrammes{u"Le dossier <", u"The directory  <", u"El directorio <"};
constexpr Texte3 AbsentJauges{u"Le dossier <", u"The directory <", u"El directorio <"};
constexpr Texte3 AbsentApres{u"> n'existe plus !", u"> does not exist any more !", u"> no existe ya !"};

constexpr Texte3 NonCreeTitre{u"Erreur", u"Erreur", u"Erreur"};
constexpr Texte3 NonCreeAvant{u"Le dossier <", u"The directory <", u"El directorio <"};
constexpr Texte3 NonCreeApres{u"> n'a pas pu être créé !", u"> could not be created !", u">  no pudo crearse !"};

void Montre(FolderTreeview &arbre, const QString &nouveau)
{
    arbre.Refresh();
    arbre.setSelectedFolder(nouveau);
}

} // namespace

DosProg::DosProg(TypeDossier type, QWidget *parent)
    : QDialog(parent)
    , m_type(type)
{
    setupUi(this);
    AppliqueLegendes(this);
    MontreNouveau(false);
    FiltreNom(Text1);
    Form_Load();
    connect(FolderTreeview1, &FolderTreeview::SelectionChange, this, &DosProg::FolderTreeview1_SelectionChange);
    connect(FolderTreeview1, &FolderTreeview::Disparu, this, &DosProg::FolderTreeview1_Disparu);
    connect(Command1, &QPushButton::clicked, this, &DosProg::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &DosProg::reject);
    connect(Command3, &QPushButton::clicked, this, &DosProg::Command3_Click);
    connect(Text1, &QLineEdit::textChanged, this, [this](const QString &nom) { Command4->setEnabled(!nom.isEmpty()); });
    connect(Command4, &QPushButton::clicked, this, &DosProg::Command4_Click);
}

/// Shows the folder without a change to it: a configuration may name it relative to the application folder, and must
/// keep it so.
void DosProg::Form_Load()
{
    try {
        FolderTreeview1->setSelectedFolder(DepuisDossierApplication(Dossier()));
    } catch (const Erreur &) {
        DitDisparu(Dossier());
        Dossier() = Reglages.DosAppli;
        Saute([this] { FolderTreeview1->setSelectedFolder(Reglages.DosAppli); });
    }
}

QString &DosProg::Dossier() const
{
    return m_type == DossierProgrammes ? ParamCom.DosRecep : Reglages.DosJauge;
}

void DosProg::FolderTreeview1_SelectionChange()
{
    const QString choisi = FolderTreeview1->SelectedFolder();
    if (choisi.isEmpty()) // its volume has been taken out; another selection follows
        return;
    Dossier() = choisi;
    Q_EMIT DossierChoisi();
}

/// The tree has selected the nearest folder that is left, or the application folder when the volume has been taken out.
/// That becomes the reception folder.
void DosProg::FolderTreeview1_Disparu(const QString &dossier)
{
    if (FolderTreeview1->SelectedFolder().isEmpty())
        Saute([this] { FolderTreeview1->setSelectedFolder(Reglages.DosAppli); });
    if (m_dit)
        return;
    m_dit = true;
    DitDisparu(dossier);
    m_dit = false;
}

void DosProg::DitDisparu(const QString &dossier)
{
    MsgBox(Texte(m_type == DossierProgrammes ? AbsentProgrammes : AbsentJauges) + dossier + Texte(AbsentApres),
           Boite::Exclamation, Texte(AbsentTitre));
}

/// When the file cannot be written the operator is told, and the folder holds for this run.
void DosProg::Command1_Click()
{
    FolderTreeview1_SelectionChange();
    AnnonceNomPerdu(Dossier(), LigneNom::Citee, windowTitle());
    AnnonceCfgPerdu(ParamCom.DosRecep, windowTitle());
    try {
        SauveCfg(ParamCom.DosRecep);
    } catch (const Erreur &erreur) {
        MsgBox(TexteNonEnregistre(erreur), Boite::Exclamation, Texte(AbsentTitre));
    }
    Q_EMIT DossierApplique();
}

void DosProg::Command3_Click()
{
    MontreNouveau(true);
    Text1->setFocus();
    Text1->selectAll();
}

/// While a name is being typed, Enter creates that folder; otherwise it applies the choice.
void DosProg::MontreNouveau(bool montre)
{
    Frame1->setVisible(montre);
    (montre ? Command4 : Command1)->setDefault(true);
}

/// The explorer column of the main window, if it has been made, selects the new folder too.
void DosProg::Command4_Click()
{
    if (FolderTreeview1->SelectedFolder().isEmpty())
        return;
    const QString nouveau = AjouteAntislash(FolderTreeview1->SelectedFolder()) + Text1->text();
    try {
        CreeDossier(nouveau);
        Montre(*FolderTreeview1, nouveau);
        if (frmPrinc->Frame1 != nullptr)
            Montre(*frmPrinc->Frame1->FolderTreeview1, nouveau);
        FolderTreeview1->setFocus(); // otherwise Enter would press the button that makes another folder
        MontreNouveau(false);
    } catch (const Erreur &) {
        MsgBox(Texte(NonCreeAvant) + nouveau + Texte(NonCreeApres), Boite::Critique, Texte(NonCreeTitre));
    }
}
