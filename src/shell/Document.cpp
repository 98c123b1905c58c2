#include "shell/Document.h"

#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "donnees/Sauvegardes.h"
#include "donnees/TexteEnCours.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "locale/TextesErreur.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/FiltresFichiers.h"
#include "shell/FrmPrinc.h"
#include "shell/NomsPerdus.h"
#include "shell/ProgrammesExternes.h"

#include <QDir>

namespace {

constexpr char16_t Version[] = u"Dorvanel Pro version " DORVANEL_VERSION;

constexpr Texte3 TitreOuvrir{u"Ouvrir", u"Open", u"Abrir"};
constexpr Texte3 TitreEnregistrer{u"Enregistrer Sous", u"Save As...", u"Registrar Bajo..."};
constexpr Texte3 NomNouveau{u"Nouveau.iso", u"New.iso", u"Nuevo.iso"};

constexpr Texte3 ModifieTitre{u"Fichier en cours modifié", u"File in progress modified",
                              u"Fichero en curso modificado"};
constexpr Texte3 ModifieAvant{u"Fichier ", u"File ", u"Fichero "};
constexpr Texte3 ModifieApres{u" modifié !", u" modified !", u" modificado !"};
constexpr Texte3 ModifieQuestion{u"            Enregistrer le fichier ? ", u"            Save files ? ",
                                 u"            Enregsi el fichero ? "};

constexpr Texte3 ErreurTitre{u"Erreur", u"Error", u"Error"};
constexpr Texte3 ErreurEnregistrement{u"Erreur lors de l'enregistrement du fichier",
                                      u"Error at the time of the recording of the file",
                                      u"Error en el registro del fichero"};

constexpr Texte3 OuvertureTitre{u"Message", u"Message", u"Mensaje"};
constexpr Texte3 OuvertureAvant{u"Erreur lors de l'ouverture du fichier : ",
                                u"Error at the time of the opening of the file : ",
                                u"Error en la apertura del fichero : "};
constexpr Texte3 OuvertureSuite{u". \r Format non reconnu ou fichier déja ouvert par une autre application.\r"
                                u" - Ouvrir le fichier avec Worpad.\r - Enregistrer le fichier au format TXT.\r"
                                u"  Voulez-vous utiliser WordPad pour lire ce fichier ?",
                                u". \r Format not recognized or file déja opened by another application.\r"
                                u" - Open the file with Worpad.\r - Record the file with format TXT.\r"
                                u"  Want you to use WordPad to read this file ?",
                                u". \r Formato no reconocido o fichero déja abierto por otra aplicación.\r"
                                u" - Abrir el fichero con Worpad.\r - Registrar el fichero al formato TXT.\r"
                                u"  Quieren utilizar a WordPad para leer este fichero ?"};

/// True when listing chemin gives a plain file: chemin is one, or ends in a separator and is a folder that holds one.
bool ListeUnFichier(const QString &chemin)
{
    if (!chemin.endsWith(QDir::separator()))
        return FichierExiste(chemin);
    return !QDir(chemin).entryList(QDir::Files).isEmpty();
}

/// Chooses the folder where the open dialog starts: the folder selected in the explorer, if its box is ticked, else the
/// default folder, else the application folder. A default folder without any file is passed over.
void ChoisitDosDefaut()
{
    if (Reglages.OptDosDefaut == 0)
        Reglages.DosDefaut = DossierApplication();
    QDir::setCurrent(Reglages.DosDefaut);
    if (!ListeUnFichier(Reglages.DosDefaut))
        Reglages.DosDefaut = DossierApplication();
    if (const auto applique = frmPrinc->DossierApplique()) {
        Reglages.DosDefaut = *applique;
        AnnonceNomRepris(Reglages.DosDefaut, Texte(TitreOuvrir));
    }
}

void ProposeTraitementDeTexte(const QString &chemin)
{
    if (Confirme(Texte(OuvertureAvant) + NomSeul(chemin) + Texte(OuvertureSuite), Boite::Information,
                 Texte(OuvertureTitre)))
        OuvreAvecTraitementDeTexte(chemin);
}

/// Enables the commands for a text that has a file: print and external editor.
void ActiveNomme()
{
    for (QAction *action : {frmPrinc->Mnu_EditProg, frmPrinc->Mnu_Imprim, frmPrinc->Bouton(5)})
        action->setEnabled(true);
}

/// Whether the program can be sent: it has a name, and a configuration was read whole. FicConf alone is not enough: it
/// may name a default configuration that is missing or damaged.
bool EmissionPossible()
{
    return EtatConf.lue && !EtatConf.FicConf.isEmpty() && !Document.NomFichier.isEmpty();
}

/// Asks for a name and saves. False when the operator cancels, or when saving failed, which he has been told.
bool EnregistreSous()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.FileName = EstGarde(Document.NomFichier) ? NomDOrigine(Document.NomFichier) : Document.NomFichier;
    dialogue.InitDir = Reglages.DosDefaut; // the shared dialog may still have a folder of configurations
    dialogue.CancelError = true;
    dialogue.DialogTitle = Texte(TitreEnregistrer);
    dialogue.Filter = Texte(FiltreEnregistrer);
    dialogue.FilterIndex = Document.IndexFiltre;
    dialogue.Flags = CommonDialog::EcrasementDemande;
    try {
        dialogue.ShowSave();
    } catch (const Erreur &) {
        return false; // cancelled
    }
    // The text gets the new name even when saving failed: the program must not offer to save it into the former file,
    // which the operator wanted to keep.
    Document.Nomme(dialogue.FileName);
    ActiveNomme();
    Saute([] { SaveFile(Document.NomFichier); });
    return !Document.FichierModifie;
}

void Text1_Change()
{
    Document.FichierModifie = true;
    frmPrinc->Mnu_EnregistrerSous->setEnabled(true);
    frmPrinc->Bouton(2)->setEnabled(true);
}

} // namespace

void BrancheDocument()
{
    QObject::connect(frmPrinc->Text1, &RichTextBox::Change, frmPrinc, Text1_Change);
    QObject::connect(frmPrinc->Text1, &RichTextBox::KeyPress, frmPrinc, [] { Document.FichierModifie = true; });
}

bool TexteModifie()
{
    return Document.FichierModifie && !frmPrinc->Text1->EstVide();
}

void TitreFenetre(const QString &nom)
{
    MontreDonnee(frmPrinc, QString::fromUtf16(Version) + (nom.isEmpty() ? nom : QStringLiteral(" : ") + nom));
}

QString NomNouveauDocument()
{
    return Texte(NomNouveau);
}

bool ProposeEnregistrement()
{
    if (Document.NomFichier.isEmpty())
        Document.NomFichier = AjouteAntislash(QDir::toNativeSeparators(QDir::currentPath())) + Texte(NomNouveau);
    const QString question = Texte(ModifieAvant) + Document.NomFichier + Texte(ModifieApres) + QStringLiteral("\r\n") +
                             Texte(ModifieQuestion);
    // The question takes no Escape: a stray key must not lose the text to a dropped file.
    return !Confirme(question, Boite::Exclamation | Boite::ChoixExige, Texte(ModifieTitre)) || EnregistreSurPlace();
}

void OuvreDepose(const QString &chemin)
{
    if (!TexteModifie() || ProposeEnregistrement())
        OuvreDocument(chemin);
}

void Mnu_Ouvrir()
{
    AppliqueLangue();
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.CancelError = true;
    dialogue.FileName.clear();
    ChoisitDosDefaut();
    dialogue.InitDir = Reglages.DosDefaut;
    try {
        if (Document.IndexFiltre == 0)
            Document.IndexFiltre = 1;
        dialogue.DialogTitle = Texte(TitreOuvrir);
        dialogue.Filter = Texte(FiltreOuvrir);
        dialogue.FilterIndex = Document.IndexFiltre;
        dialogue.ShowOpen();
        Document.IndexFiltre = dialogue.FilterIndex;
        if (!dialogue.FileName.isEmpty())
            OuvreDocument(dialogue.FileName);
    } catch (const Erreur &) {
        dialogue.CancelError = false;
    }
}

void OuvreDocument(const QString &chemin)
{
    try {
        OpenFile(chemin);
    } catch (const Erreur &) {
        ProposeTraitementDeTexte(chemin);
    }
}

void OpenFile(const QString &path)
{
    const bool texteEnrichi = path.right(3).toUpper() == QLatin1String("RTF");
    frmPrinc->Text1->LoadFile(path, texteEnrichi ? RichTextBox::TexteRiche : RichTextBox::TexteSimple);
    Document.Nomme(path);
    TitreFenetre(Document.NomFichier);
    frmPrinc->ActiveEmission(EmissionPossible());
    frmPrinc->ActiveFichier(true);
    MontreDonnee(frmPrinc->Label2, Document.TitreFichier);
    frmPrinc->Text1->show();
    Document.FichierModifie = false;
}

void Mnu_EnregistrerSous()
{
    EnregistreSous();
}

bool EnregistreSurPlace()
{
    if (Document.NomFichier.isEmpty())
        return false;
    if (EstGarde(Document.NomFichier))
        return EnregistreSous();
    try {
        GardeCopie(Document.NomFichier);
        SaveFile(Document.NomFichier);
        Document.NomRecu.clear();
        ActiveNomme();
        return true;
    } catch (const Erreur &) {
        return false;
    }
}

QString TexteNonEnregistre(const Erreur &erreur)
{
    return Texte(ErreurEnregistrement) + u'\r' + TexteErreur(erreur);
}

void SaveFile(const QString &path)
{
    try {
        EcritFichierTexte(path, frmPrinc->Text1->Text() + QStringLiteral("\r\n"));
    } catch (const Erreur &) {
        MsgBox(Texte(ErreurEnregistrement), Boite::Critique, Texte(ErreurTitre));
        throw;
    }
    TitreFenetre(Document.NomFichier);
    MontreDonnee(frmPrinc->Label2, Document.TitreFichier);
    if (EmissionPossible())
        frmPrinc->ActiveEmission(true);
    Document.FichierModifie = false;
    RetireEnCours();
}
