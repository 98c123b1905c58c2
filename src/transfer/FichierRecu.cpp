#include "transfer/FichierRecu.h"

#include "donnees/Chemins.h"
#include "donnees/Sauvegardes.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FiltresFichiers.h"
#include "shell/FrmPrinc.h"
#include "shell/ProgrammesExternes.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr Texte3 ResteTitre{u"Enregistrer le texte reçu", u"Save the received text", u"Guardar el texto recibido"};
constexpr Texte3 ResteRompu{
    u"La réception n'a pas abouti, le texte déjà reçu n'est pas enregistré.\rL'enregistrer dans un fichier ?",
    u"The reception has failed, the text already received is not saved.\rSave it to a file ?",
    u"La recepción ha fallado, el texto ya recibido no está guardado.\r¿Guardarlo en un fichero?"};
constexpr Texte3 ResteTermine{
    u"La réception est terminée, mais son fichier n'a pas été écrit.\rEnregistrer le texte reçu dans un autre fichier "
    u"?",
    u"The reception is finished, but its file has not been written.\rSave the received text to another file ?",
    u"La recepción ha terminado, pero su fichero no se ha escrito.\r¿Guardar el texto recibido en otro fichero?"};
constexpr Texte3 CopieReste{u"\rNon : une copie reste dans le dossier Sauvegardes.",
                            u"\rNo: a copy stays in the folder Sauvegardes.",
                            u"\rNo: una copia queda en la carpeta Sauvegardes."};

/// A file of this many bytes or more is not shown after a reception.
constexpr qint64 TailleTropGrande = 65536;

bool ecritEntier = false; // the file of the last reception stands whole on the disk

/// Calls ecriture with the path of the reception's file. A failure that it raises then names that file.
template <typename Ecriture>
void EcritRecu(Ecriture ecriture)
{
    ecritEntier = false;
    const QString chemin = CheminRecep();
    try {
        ecriture(chemin);
    } catch (const Erreur &erreur) {
        throw Erreur(erreur.Numero(), chemin, erreur.Cause());
    }
    ecritEntier = true;
}

void OublieNom()
{
    Document.Nomme({});
    MontreDonnee(frmPrinc->Label2, QString());
}

void VidePane()
{
    frmPrinc->Text1->setText(QString()); // first: a changed text is kept under the name that it still has
    OublieNom();
    frmPrinc->Text1->hide();
    frmPrinc->ActiveFichier(false);
}

void ProposeTraitementDeTexte(const QString &chemin)
{
    const QString question = QStringLiteral("Le fichier ") + NomSeul(chemin) +
                             QStringLiteral(" est trop volumineux pour être ouvert par Brovane.\r"
                                            "           Voulez-vous utiliser WordPad pour lire ce fichier ?");
    if (Confirme(question, Boite::Information, QStringLiteral("Message")))
        OuvreAvecTraitementDeTexte(chemin);
}

/// Asks for a file and writes texte to it. Gives its path.
QString EcritAilleurs(const QString &texte, const OffreSauvegarde &offre)
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    const QString dossier =
        QFileInfo::exists(Transfert.DossierRecep) ? Transfert.DossierRecep : QString(); // may be gone
    dialogue.PrepareFichier(offre.titre, offre.filtre, dossier, offre.nom);
    dialogue.DefaultExt = QFileInfo(offre.nom).suffix();
    dialogue.ShowSave();
    EcritFichierTexte(dialogue.FileName, texte, FichierCoupe::Part);
    return dialogue.FileName;
}

void MontreFichier(const QString &chemin)
{
    frmPrinc->Text1->setText(LitFichierTexte(chemin));
    TitreFenetre(chemin);
    MontreDonnee(frmPrinc->Label2, NomSeul(chemin));
    frmPrinc->Text1->show();
    frmPrinc->ActiveFichier(true);
    frmPrinc->ActiveEmission(true);
}

} // namespace

QString CommeFichierRecu(const QString &texte)
{
    return texte + QStringLiteral("\r\n");
}

void EcritFichierRecu(const QString &texte)
{
    EcritRecu([&](const QString &chemin) { EcritFichierTexte(chemin, CommeFichierRecu(texte), FichierCoupe::Part); });
}

void OublieFichierRecu()
{
    ecritEntier = false;
}

void CreeFichierRecu()
{
    EcritRecu([](const QString &chemin) { EcritFichierTexte(chemin, QString()); });
}

void AjouteFichierRecu(const QString &texte)
{
    EcritRecu([&](const QString &chemin) { AjouteFichierTexte(chemin, CommeFichierRecu(texte)); });
}

void OuvreFichierRecu()
{
    if (ecritEntier)
        MontreRecu(CheminRecep());
}

void MontreRecu(const QString &chemin)
{
    Saute([&chemin] {
        if (QFileInfo(chemin).size() >= TailleTropGrande) {
            VidePane();
            TitreFenetre(chemin);
            ProposeTraitementDeTexte(chemin);
        } else {
            MontreFichier(chemin);
        }
        Document.Nomme(chemin);
        Document.FichierModifie = false;
    });
}

void PerdNomRecu()
{
    OublieNom();
    TitreFenetre(QString());
    Document.FichierModifie = true;
    frmPrinc->ActiveEmission(false);
}

OffreSauvegarde OffreTexteRecu(bool terminee)
{
    return {Texte(ResteTitre), Texte(terminee ? ResteTermine : ResteRompu), Texte(FiltreEnregistrer),
            Transfert.NomFicRecep};
}

QString SauveAilleurs(const QString &texte, const OffreSauvegarde &offre)
{
    if (texte.isEmpty())
        return {};
    const QString garde = GardeTexte(offre.nom, texte);
    const QString question = garde.isEmpty() ? offre.question : offre.question + Texte(CopieReste);
    while (Confirme(question, Boite::Exclamation, offre.titre)) {
        try {
            QString chemin = EcritAilleurs(texte, offre);
            if (!garde.isEmpty())
                QFile::remove(garde);
            return chemin;
        } catch (const Erreur &erreur) {
            if (erreur.Numero() != Erreur::DialogueAnnule)
                MsgBox(TexteNonEnregistre(erreur), Boite::Critique, offre.titre);
        }
    }
    return {};
}
