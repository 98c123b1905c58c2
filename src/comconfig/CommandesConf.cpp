#include "comconfig/CommandesConf.h"

#include "comconfig/Prop.h"
#include "donnees/Chemins.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/controles/UneLigne.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/serie/ReglagePort.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QDir>

namespace {

constexpr Texte3 FiltreParModif{u"Fichiers paramètres (*.par)|*.PAR", u"Files parameters (*.par)|*.PAR",
                                u"Ficheros parámetros (*.par)|*.PAR"};
constexpr Texte3 TitreChoix{u"Sélectionner une configuration de communication",
                            u"Select a configuration of communication",
                            u"Seleccionar una configuración de comunicación"};

constexpr Texte3 AbsentTitre{u"Erreur de chargement de fichier de configuration à défaut",
                             u"Error of loading of file of configuration failing this",
                             u"Error de cargamento de fichero de configuración a defecto"};
constexpr Texte3 AbsentAvant{u"Le fichier ", u"The file does not exist ", u"El fichero  "};
constexpr Texte3 AbsentApres{u" n'existe pas !", u" !", u" no existe !"};

/// A message for a configuration that cannot be read.
struct MessagePar
{
    Texte3 titre;
    Texte3 texte;
};

constexpr MessagePar MessageMenu{
    {u"Fichier de configuration erroné ou de version antérieure !",
     u"Erroneous file of configuration or former version !", u"Fichero de configuración erróneo o versión previa !"},
    {u"Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
     u"File of configuration of former version !\rModify and record again.",
     u"Fichero de configuración de versión previa !\rModificarse de nuevo y registrar."}};
constexpr MessagePar MessageTransfert{
    {u"Fichier de configuration erroné", u"Erroneous file of configuration", u"Fichero de configuración erróneo"},
    {u"Fichier de configuration de version antérieure !\rModifier en enregistrer de nouveau.",
     u"File of configuration of former version !\rModify to record some again.",
     u"Fichero de configuración de versión previa !\rModificarse registrar de nuevo."}};

void NommeConfiguration(const QString &fichier)
{
    EtatConf.FicConf = fichier;
    EtatConf.NomConf = NomSeul(fichier);
}

void MontreConfiguration()
{
    MontreDonnee(frmPrinc->Label4, EtatConf.NomConf);
    MontreDonnee(frmPrinc->Label6, ParamCom.Commentaire);
}

/// Reads FicConf, makes it the current configuration and updates the main window.
void MetEnService()
{
    LireFichierPar(EtatConf.FicConf);
    frmPrinc->ActiveReception();
    frmPrinc->ActiveEmission(!Document.NomFichier.isEmpty());
    MontreConfiguration();
    BatirChaines();
}

/// Same as MetEnService(), except for the toolbar and the derived strings: these follow when the operator applies his
/// changes.
void PrepareModification()
{
    LireFichierPar(EtatConf.FicConf);
    for (QAction *entree : {frmPrinc->Mnu_RecepProg, frmPrinc->Mnu_RecepJauge, frmPrinc->Mnu_RecepBanc})
        entree->setEnabled(true);
    frmPrinc->Mnu_Transfert->setEnabled(true);
    const bool emission = !Document.NomFichier.isEmpty();
    for (QAction *entree : {frmPrinc->Mnu_EmisProgCN, frmPrinc->Mnu_EmisJauge})
        entree->setEnabled(emission);
    if (emission)
        frmPrinc->Mnu_EnregistrerSous->setEnabled(true);
    MontreConfiguration();
}

/// Sets the fields of a new configuration. Its chains are empty. The codes behind them, FinLigRecep, TypeEnvoi and the
/// derived strings keep their values.
void MetConfigurationNeuve()
{
    ConfigurationCom &p = ParamCom;
    p.NumPort = 2;
    p.NomPort = QStringLiteral("Com2");
    p.Commentaire.clear();
    p.Vitesse = QStringLiteral("9600");
    p.Parite = QStringLiteral("e");
    p.BitsDonnees = QStringLiteral("7");
    p.BitsArret = QStringLiteral("1");
    p.Echo = 0;
    p.ControleFlux = static_cast<int>(ControleFlux::RtsCts);
    p.TypeFinTrans = FinTransXoff;
    p.TypeFinLig = FinLigLf;
    p.NbCarLecture = 512;
    p.CarRemplace = QStringLiteral("?");
    p.TailleTamponRecep = 1024;
    p.TailleTamponEmis = 512;
    p.SeuilRecep = p.SeuilEmis = 0;
    p.FiltreNul = 1;
    p.LigneRTS = p.LigneDTR = 0;
    p.DosRecep = DossierApplication();
    p.TypeRecep = RecepLignes;
    p.TailleRecep = 0;
    for (QString *const libelle : {&p.LibDebProg, &p.LibFinLig, &p.LibFinTrans})
        libelle->clear();
    p.NbCarDebProg = p.NbCarFinLig = p.NbCarFinTrans = 0;
    EtatConf.neuve = true;
    EtatConf.malEcrite = false;
    // Fields that are not set here may still come from a failed reading.
    if (EtatConf.fiche == EtatConfiguration::Entiere)
        EtatConf.fiche = EtatConfiguration::EnAttente;
}

/// A cancelled choice is no failure.
void MontreEchec(const Erreur &erreur, const MessagePar &message)
{
    if (erreur.Numero() != Erreur::DialogueAnnule)
        MsgBox(Texte(message.texte), Boite::Exclamation, Texte(message.titre));
}

} // namespace

QString ChoisitFichierPar(const QString &dossier, const Texte3 &filtre)
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.PrepareFichier(Texte(TitreChoix), Texte(filtre), dossier);
    dialogue.ShowOpen();
    return dialogue.FileName;
}

void ConfDefaut(const QString &fichier)
{
    EtatConf.FicConf = fichier;
    if (EtatConf.FicConf.isEmpty())
        return;
    if (!FichierExiste(EtatConf.FicConf)) {
        MsgBox(Texte(AbsentAvant) + EtatConf.FicConf + Texte(AbsentApres), Boite::Exclamation, Texte(AbsentTitre));
        return;
    }
    EtatConf.NomConf = NomSeul(EtatConf.FicConf);
    MetEnService();
}

void Mnu_ChargeConf()
{
    AppliqueLangue();
    QDir::setCurrent(Reglages.DosAppli);
    Saute([] { ChargeConf(ChoisitFichierPar(Reglages.DosConf)); }); // when he cancels
}

void ChargeConf(const QString &fichier)
{
    NommeConfiguration(fichier);
    try {
        MetEnService();
    } catch (const Erreur &erreur) {
        MontreEchec(erreur, MessageMenu);
    }
}

void Mnu_CreConf()
{
    AppliqueLangue();
    MetConfigurationNeuve();
    Prop dialogue(frmPrinc);
    dialogue.NommeNouvelle();
    dialogue.exec();
}

/// A file that cannot be read to its end is told and opened all the same, so that the operator can complete it and save
/// it again.
void Mnu_ModifConf()
{
    AppliqueLangue();
    try {
        NommeConfiguration(ChoisitFichierPar(Reglages.DosConf, FiltreParModif));
        PrepareModification();
    } catch (const Erreur &erreur) {
        MontreEchec(erreur, MessageMenu);
        if (erreur.Numero() == Erreur::DialogueAnnule)
            return;
    }
    Prop dialogue(frmPrinc);
    dialogue.Nomme(EtatConf.NomConf);
    dialogue.Text1->setText(ParamCom.Commentaire);
    dialogue.exec();
}

void Mnu_DosRecep()
{
    AppliqueLangue();
    Prop dialogue(frmPrinc);
    dialogue.LimiteAuxDossiers();
    dialogue.exec();
}

void ChargeAutreConfiguration(const std::function<void()> &montre)
{
    try {
        NommeConfiguration(ChoisitFichierPar(Reglages.DosAppli));
        LireFichierPar(EtatConf.FicConf);
        MontreConfiguration();
        BatirChaines();
        montre();
    } catch (const Erreur &erreur) {
        MontreEchec(erreur, MessageTransfert);
    }
}

QString ConfigurationEnClair()
{
    return EtatConf.NomConf + QStringLiteral("  ") + SurUneLigne(ParamCom.Commentaire);
}
