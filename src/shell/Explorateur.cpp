#include "shell/Explorateur.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "platform/Dossiers.h"
#include "platform/Erreur.h"
#include "shell/CadreExplorateur.h"
#include "shell/Chemins.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "shell/SuppressionDossier.h"

#include <QDir>

namespace {

constexpr Texte3 BulleFerme{u"Afficher l'explorateur de fichiers", u"View explorer files",
                            u"Indicar el explorador de ficheros"};
constexpr Texte3 BulleOuvert{u"Fermer l'explorateur de fichiers", u"Close explorer files",
                             u"Cerrar el explorador de ficheros"};

constexpr Texte3 ErreurTitre{u"Erreur", u"Error", u"Error"};
constexpr Texte3 FiltreIncorrect{u"Filtre incorrect !", u"Incorrect filter !", u"Filtro incorrecto !"};

constexpr Texte3 CreerTitre{u"Créer un dossier", u"Create a directory", u"Crear un directorio"};
constexpr Texte3 CreerAvant{u"Indiquez le nom du nouveau dossier, qui deviendra sous-dossier de ",
                            u"Indicate the name of the new file,which will become sub-directory of ",
                            u"Indique el nombre del nuevo expediente, que se volverá subfichero de "};
constexpr Texte3 CreerApres{u" après sa création !", u" after its creation !", u" después de su creación !"};
constexpr Texte3 NonCreeAvant{u"Le dossier ", u"The repertory ", u"El directorio "};
constexpr Texte3 NonCreeApres{u" n'a pas pu être créé !", u"  could not be to create !", u" no pudo ser crear !"};

constexpr Texte3 AucunDossier{u"Pas de dossier sélectionné !", u"No selected directory !",
                              u"No hay directorio seleccionado !"};
constexpr Texte3 RacineTitre{u"Attention", u"Caution", u"Atención"};
constexpr Texte3 RacineTexte{u"Vous vous trouvez dans le dossier racine ! Ce dossier ne peut pas être supprimé !",
                             u"You are in the root directory ! This directory cannot be removed !",
                             u"Se encuentran en el directorio raíz ! Este directorio no puede suprimirse !"};

constexpr Texte3 NonRenommableTitre{u"Information", u"Information", u"Información"};
constexpr Texte3 NonRenommable{u"Ce dossier ne peut pas être renommé ! ou dossier racine !",
                               u"This repertory cannot be famous! or root directory !",
                               u"Este directorio no puede reelegirse! ¡o directorio raíz !"};
constexpr Texte3 NonRenomme{u"Erreur ! Le dossier ne peut être renommé.", u"Error ! The repertory cannot be famous.",
                            u"Error ! El directorio no puede reelegirse."};

QString SansSeparateur(const QString &dossier)
{
    return QDir::toNativeSeparators(QDir::cleanPath(dossier));
}

/// Shows the files of the selected folder, read anew; where that cannot be listed, the files shown stay.
void FolderTreeview1_Click()
{
    Saute([] { frmPrinc->Frame1->File1->setPath(frmPrinc->Frame1->FolderTreeview1->SelectedFolder()); });
}

/// The column starts in the folder where programs are opened; when that has gone (a USB key), in the application
/// folder.
void PointeDossier()
{
    if (DosDefaut.isEmpty())
        DosDefaut = DossierApplication();
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    arbre.Refresh();
    try {
        arbre.setSelectedFolder(DosDefaut);
    } catch (const Erreur &) {
        Saute([&arbre] { arbre.setSelectedFolder(DossierApplication()); });
    }
    FolderTreeview1_Click();
}

void Combo1_Change()
{
    FileListBox &fichiers = *frmPrinc->Frame1->File1;
    try {
        fichiers.setPattern(frmPrinc->Frame1->Combo1->currentText());
    } catch (const Erreur &) {
        MsgBox(Texte(FiltreIncorrect), Boite::Exclamation, Texte(ErreurTitre));
        fichiers.setPattern(QStringLiteral("*.*"));
    }
}

/// Opens the file that the list shows: its own folder is the selected one, but where that could not be listed.
void File1_DblClick()
{
    OuvreDocument(AjouteAntislash(frmPrinc->Frame1->File1->Path()) + frmPrinc->Frame1->File1->FileName());
}

/// Creates a folder in the selected one.
void Command1_Click()
{
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    const QString dossier = arbre.SelectedFolder();
    if (dossier.isEmpty())
        return;
    const QString nom = InputBox(Texte(CreerAvant) + dossier + Texte(CreerApres), Texte(CreerTitre));
    if (nom.trimmed().isEmpty())
        return;
    const QString nouveau = AjouteAntislash(dossier) + nom;
    try {
        CreeDossier(nouveau);
        arbre.Refresh();
        arbre.setSelectedFolder(nouveau);
    } catch (const Erreur &) {
        MsgBox(Texte(NonCreeAvant) + nouveau + Texte(NonCreeApres), Boite::Critique, Texte(ErreurTitre));
    }
}

/// Deletes the selected folder. The folder above is selected afterwards, whatever the operator answered.
void Command2_Click()
{
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    const QString dossier = arbre.SelectedFolder();
    if (dossier.isEmpty()) {
        MsgBox(Texte(AucunDossier), Boite::Exclamation, Texte(ErreurTitre));
        return;
    }
    if (EstRacine(dossier)) {
        MsgBox(Texte(RacineTexte), Boite::Critique, Texte(RacineTitre));
        return;
    }
    const QString parent = arbre.Parent();
    SupprimeDossier(SansSeparateur(dossier));
    arbre.Refresh();
    try {
        arbre.setSelectedFolder(parent);
    } catch (const Erreur &) {
        Saute([&arbre] { arbre.setSelectedFolder(QDir::rootPath()); });
    }
}

/// Renames the selected folder: the operator edits its whole path.
void Command4_Click()
{
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    const QString dossier = SansSeparateur(arbre.SelectedFolder());
    if (dossier.isEmpty() || EstRacine(dossier)) {
        MsgBox(Texte(NonRenommable), Boite::Information, Texte(NonRenommableTitre));
        return;
    }
    const QString nouveau = InputBox(QStringLiteral("Indiquez le nouveau nom pour le dossier %1.").arg(dossier),
                                     QStringLiteral("Nouveau nom du dossier"), dossier);
    if (nouveau.isEmpty())
        return;
    try {
        RenommeDossier(dossier, nouveau);
        arbre.Refresh();
        arbre.setSelectedFolder(nouveau);
    } catch (const Erreur &) {
        MsgBox(Texte(NonRenomme), Boite::Exclamation, Texte(ErreurTitre));
        arbre.Refresh();
    }
}

/// Makes the column and ties its controls to its commands.
void CreeColonne()
{
    const CadreExplorateur *const colonne = frmPrinc->CreeExplorateur();
    const std::pair<QPushButton *, void (*)()> boutons[] = {
        {colonne->Command1, Command1_Click},
        {colonne->Command2, Command2_Click},
        {colonne->Command3, [] { frmPrinc->MontreExplorateur(false); }},
        {colonne->Command4, Command4_Click},
    };
    for (const auto &[bouton, routine] : boutons)
        QObject::connect(bouton, &QPushButton::clicked, frmPrinc, routine);
    QObject::connect(colonne->FolderTreeview1, &FolderTreeview::SelectionChange, frmPrinc, FolderTreeview1_Click);
    QObject::connect(colonne->FolderTreeview1, &FolderTreeview::Click, frmPrinc, FolderTreeview1_Click);
    QObject::connect(colonne->File1, &FileListBox::DblClick, frmPrinc, File1_DblClick);
    QObject::connect(colonne->Combo1, &QComboBox::editTextChanged, frmPrinc, Combo1_Change);
}

} // namespace

void Mnu_AffichDOS()
{
    AppliqueLangue();
    const bool montre = !frmPrinc->ExplorateurMontre();
    if (frmPrinc->Frame1 == nullptr)
        CreeColonne();
    if (montre)
        PointeDossier();
    frmPrinc->MontreExplorateur(montre);
    PoseBulle(frmPrinc->Bouton(15), Texte(montre ? BulleOuvert : BulleFerme));
}
