#include "comconfig/CommandesConf.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "platform/CommonDialog.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "shell/Chemins.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>

namespace {

constexpr Texte3 FiltrePar{u"Fichiers paramètres (*.par)|*.Par", u"Files parameters (*.par)|*.Par",
                           u"Ficheros parámetros (*.par)|*.Par"};
constexpr Texte3 TitreChoix{u"Sélectionner une configuration de communication",
                            u"Select a configuration of communication",
                            u"Seleccionar una configuración de comunicación"};

constexpr Texte3 AbsentTitre{u"Erreur de chargement de fichier de configuration à défaut",
                             u"Error of loading of file of configuration failing this",
                             u"Error de cargamento de fichero de configuración a defecto"};
constexpr Texte3 AbsentAvant{u"Le fichier ", u"The file does not exist ", u"El fichero  "};
constexpr Texte3 AbsentApres{u" n'existe pas !", u" !", u" no existe !"};

/// Message of a failed read: A from the menu, B from the dialogs that transfer.
struct MessagePar
{
    Texte3 titre;
    Texte3 texte;
};

constexpr MessagePar MessageA{{u"Fichier de configuration erroné ou de version antérieure !",
                               u"Erroneous file of configuration or former version !",
                               u"Fichero de configuración erróneo o versión previa !"},
                              {u"Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
                               u"File of configuration of former version !\rModify and record again.",
                               u"Fichero de configuración de versión previa !\rModificarse de nuevo y registrar."}};
constexpr MessagePar MessageB{
    {u"Fichier de configuration erroné", u"Erroneous file of configuration", u"Fichero de configuración erróneo"},
    {u"Fichier de configuration de version antérieure !\rModifier en enregistrer de nouveau.",
     u"File of configuration of former version !\rModify to record some again.",
     u"Fichero de configuración de versión previa !\rModificarse registrar de nuevo."}};

/// Asks for a .par file, first in dossier; FicConf and NomConf then name the choice. Raises DialogueAnnule.
void DemandeFichierPar(const QString &dossier)
{
    FicConf = ChoisitFichierPar(dossier);
    NomConf = NomSeul(FicConf);
}

void MontreConfiguration()
{
    MontreDonnee(frmPrinc->Label4, NomConf);
    MontreDonnee(frmPrinc->Label6, ParamCom.Commentaire);
}

/// Reads FicConf and makes it the configuration in force, with all that follows from it on the main window.
void MetEnService()
{
    LireFichierPar(FicConf);
    frmPrinc->ActiveReception();
    frmPrinc->ActiveEmission(!NomFichier.isEmpty() && !FicConf.isEmpty());
    MontreConfiguration();
    BatirChaines();
}

/// A cancelled choice is no failure.
void MontreEchec(const Erreur &erreur, const MessagePar &message)
{
    if (erreur.Numero() != Erreur::DialogueAnnule)
        MsgBox(Texte(message.texte), Boite::Exclamation, Texte(message.titre));
}

} // namespace

QString ChoisitFichierPar(const QString &dossier)
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.CancelError = true;
    dialogue.FileName.clear();
    dialogue.InitDir = dossier;
    dialogue.DialogTitle = Texte(TitreChoix);
    dialogue.Filter = Texte(FiltrePar);
    dialogue.FilterIndex = 1;
    dialogue.ShowOpen();
    return dialogue.FileName;
}

void ConfDefaut(const QString &fichier)
{
    FicConf = fichier;
    if (FicConf.isEmpty())
        return;
    if (!FichierExiste(FicConf)) {
        MsgBox(Texte(AbsentAvant) + FicConf + Texte(AbsentApres), Boite::Exclamation, Texte(AbsentTitre));
        return;
    }
    NomConf = NomSeul(FicConf);
    MetEnService();
}

void Mnu_ChargeConf()
{
    AppliqueLangue();
    try {
        QDir::setCurrent(DosAppli);
        DemandeFichierPar(DosConf);
        if (!FicConf.isEmpty())
            MetEnService();
    } catch (const Erreur &erreur) {
        MontreEchec(erreur, MessageA);
    }
}

void ChargeAutreConfiguration(const std::function<void()> &montre)
{
    try {
        DemandeFichierPar(DosAppli);
        if (FicConf.isEmpty())
            return;
        LireFichierPar(FicConf);
        MontreConfiguration();
        BatirChaines();
        montre();
    } catch (const Erreur &erreur) {
        MontreEchec(erreur, MessageB);
    }
}

QString ConfigurationEnClair()
{
    return NomConf + QStringLiteral("  ") + ParamCom.Commentaire;
}
