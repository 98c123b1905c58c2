#include "shell/Explorateur.h"

#include "donnees/Chemins.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/Dossiers.h"
#include "shell/CadreExplorateur.h"
#include "shell/CheminsTenus.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"
#include "shell/SuppressionDossier.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QTimer>

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

constexpr Texte3 DeLApplication{
    u"Ce dossier est celui de l'application, ou il le contient ! Il ne peut être ni supprimé ni renommé !",
    u"This directory is that of the application, or holds it ! It can be neither removed nor renamed !",
    u"Este directorio es el de la aplicación, o lo contiene ! No puede suprimirse ni renombrarse !"};

constexpr Texte3 DisparuTexte{u"Le dossier %1 n'est plus là : il a été supprimé ou déplacé, ou son support retiré.",
                              u"The directory %1 is no longer there: it was removed or moved, or its drive taken out.",
                              u"El directorio %1 ya no está: fue suprimido o desplazado, o su unidad retirada."};
constexpr Texte3 Decoche{
    u"\rLe dossier sélectionné n'est plus appliqué à l'ouverture ni à la réception des programmes.",
    u"\rThe selected directory is no longer applied to the opening and receiving of programs.",
    u"\rEl directorio seleccionado ya no se aplica a la apertura ni a la recepción de programas."};

constexpr Texte3 NonRenommableTitre{u"Information", u"Information", u"Información"};
constexpr Texte3 NonRenommable{u"Ce dossier ne peut pas être renommé ! ou dossier racine !",
                               u"This repertory cannot be famous! or root directory !",
                               u"Este directorio no puede reelegirse! ¡o directorio raíz !"};
constexpr Texte3 NonRenomme{u"Erreur ! Le dossier ne peut être renommé.", u"Error ! The repertory cannot be famous.",
                            u"Error ! El directorio no puede reelegirse."};

/// Waits until a lost folder can be told, and exists until the operator has read that. A further loss in the meantime
/// gets no message of its own.
QPointer<QTimer> annonce;

QString SansSeparateur(const QString &dossier)
{
    return QDir::toNativeSeparators(QDir::cleanPath(dossier));
}

/// Reads and shows the files of the selected folder. When it cannot be listed, the former list stays.
void FolderTreeview1_Click()
{
    Saute([] { frmPrinc->Frame1->File1->setPath(frmPrinc->Frame1->FolderTreeview1->SelectedFolder()); });
}

/// Selects the folder where programs are opened, or the application folder when that is missing (a USB key).
void PointeDossier()
{
    if (Reglages.DosDefaut.isEmpty())
        Reglages.DosDefaut = DossierApplication();
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    arbre.Refresh();
    try {
        arbre.setSelectedFolder(Reglages.DosDefaut);
    } catch (const Erreur &) {
        Saute([&arbre] { arbre.setSelectedFolder(DossierApplication()); });
    }
    FolderTreeview1_Click();
}

/// Shows texte once no dialog and no menu is open: a box would stop a running transfer.
void AnnonceDisparu(const QString &texte)
{
    using namespace std::chrono_literals;
    if (annonce != nullptr)
        return;
    annonce = new QTimer(frmPrinc);
    annonce->setObjectName(QStringLiteral("AnnonceDisparu"));
    annonce->callOnTimeout([texte] {
        if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
            return;
        annonce->stop();
        MsgBox(texte, Boite::Exclamation, Texte(RacineTitre));
        if (annonce != nullptr)
            annonce->deleteLater();
    });
    annonce->start(200ms);
}

/// The selected folder has disappeared (deleted, or its USB key pulled out), and the tree has selected another one. The
/// operator has not chosen that one, so CheckDOS is cleared. He is told, except when the column is closed and CheckDOS
/// was clear: then nothing changes for him.
void FolderTreeview1_Disparu(const QString &dossier)
{
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    if (arbre.SelectedFolder().isEmpty())
        Saute([&arbre] { arbre.setSelectedFolder(DossierApplication()); });
    const bool applique = frmPrinc->Frame1->CheckDOS->isChecked();
    if (applique) {
        frmPrinc->Frame1->CheckDOS->setChecked(false);
        QuitteReceptions(dossier);
    }
    if (applique || frmPrinc->ExplorateurMontre())
        AnnonceDisparu(Texte(DisparuTexte).arg(SansSeparateur(dossier)) + (applique ? Texte(Decoche) : QString()));
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

/// Opens the file chosen in the list. Its folder is the list's own: the list may still show the former folder when the
/// one selected in the tree cannot be listed.
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

/// True when dossier is the application folder or contains it. The operator is then told that it must stay.
bool PorteApplication(const QString &dossier)
{
    if (!ResteDerriere(dossier, DossierApplication()))
        return false;
    MsgBox(Texte(DeLApplication), Boite::Critique, Texte(RacineTitre));
    return true;
}

/// Runs travail, which deletes or renames folders, while neither the tree nor the list watches them.
void SansGarde(const std::function<void()> &travail)
{
    const CadreExplorateur &colonne = *frmPrinc->Frame1;
    colonne.FolderTreeview1->Pendant([&] { colonne.File1->Pendant(travail); });
}

/// Deletes the selected folder. The folder above it is selected afterwards, even when the operator answers No.
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
    if (PorteApplication(dossier))
        return;
    const QString parent = arbre.Parent();
    SansGarde([&dossier] { SupprimeDossier(SansSeparateur(dossier)); });
    try {
        arbre.setSelectedFolder(parent);
    } catch (const Erreur &) {
        Saute([&arbre] { arbre.setSelectedFolder(QDir::rootPath()); });
    }
}

/// Warns of a new name that the settings cannot keep. The folder of configurations is the one that they hold without
/// quotes.
void AnnonceDossierRenomme(const QString &nouveau)
{
    const bool nu = nouveau.contains(u',') && ResteDerriere(nouveau, DepuisDossierApplication(Reglages.DosConf));
    AnnonceNomPerdu(nouveau, nu ? LigneNom::Nue : LigneNom::Citee, Texte(RacineTitre));
}

/// Renames the selected folder. The operator edits its whole path; the paths that the program remembers follow.
void Command4_Click()
{
    FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
    const QString dossier = SansSeparateur(arbre.SelectedFolder());
    if (dossier.isEmpty() || EstRacine(dossier)) {
        MsgBox(Texte(NonRenommable), Boite::Information, Texte(NonRenommableTitre));
        return;
    }
    if (PorteApplication(dossier))
        return;
    const QString nouveau = InputBox(QStringLiteral("Indiquez le nouveau nom pour le dossier %1.").arg(dossier),
                                     QStringLiteral("Nouveau nom du dossier"), dossier);
    if (nouveau.isEmpty())
        return;
    try {
        bool suivi = false;
        SansGarde([&] { suivi = RenommeEtSuit(dossier, nouveau); });
        arbre.setSelectedFolder(nouveau);
        if (suivi)
            AnnonceDossierRenomme(SansSeparateur(arbre.SelectedFolder()));
    } catch (const Erreur &) {
        MsgBox(Texte(NonRenomme), Boite::Exclamation, Texte(ErreurTitre));
        arbre.Refresh();
    }
}

/// Uses the selected folder for opening and receiving programs from now on.
void CheckDOS_Click()
{
    if (const auto dossier = frmPrinc->DossierApplique())
        AnnonceNomPerdu(*dossier, LigneNom::Citee, Texte(RacineTitre));
}

/// Makes the column and connects its controls with their handlers.
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
    QObject::connect(colonne->FolderTreeview1, &FolderTreeview::Disparu, frmPrinc, FolderTreeview1_Disparu);
    QObject::connect(colonne->CheckDOS, &QCheckBox::clicked, frmPrinc, CheckDOS_Click);
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
    PoseBulle(frmPrinc->Bouton(15), TexteChoisi(montre ? BulleOuvert : BulleFerme));
}
