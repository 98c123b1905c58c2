#include "transfer/EvenementsCom.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/CedeLaMain.h"
#include "platform/Erreur.h"
#include "platform/ErreurPort.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/PortCom.h"
#include "transfer/Transfert.h"
#include "ui_Em_Rc.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>

namespace {

enum Genre { Evenement, Faute };

struct TexteEvenement
{
    int code;
    Genre genre;
    Texte3 texte;
};

constexpr int Reception = 2;
constexpr int Debordement = 1008;
constexpr int ModeBanc = 5;
constexpr int RecepParFichier = 2;

constexpr TexteEvenement Textes[] = {
    {2, Evenement, {u"Réception d'un évènement", u"Receiving of an event", u"Recepción de un acontecimiento"}},
    {1, Evenement, {u"Envoi d'un événement.", u"Sending of an event.", u"Envío de un acontecimiento."}},
    {3,
     Evenement,
     {u"Changement de Prêt à émettre (CTS) détecté", u"Change of Loan to be emitted (CTS) detected",
      u"Cambio de Préstamo que debe emitirse (CTS) detectado"}},
    {4,
     Evenement,
     {u"Changement de Modem prêt (DSR) détecté", u"Change of ready Modem (DSR) detected",
      u"Cambio de Módem listo (DSR) detectado"}},
    {5,
     Evenement,
     {u"Changement de Détection de porteuse (CD) détecté", u"Change of Detection of carrying (CD) detected",
      u"Cambio de Detección de portador (CD) detectado"}},
    {6,
     Evenement,
     {u"Le téléphone sonne - Détection d'anneau.", u"The telephone sounds - Detection of ring.",
      u"El teléfono suena - Detección de anillo."}},
    {7, Evenement, {u"Fin de fichier détecté", u"End of detected file", u"Final de fichero detectado"}},
    {1001, Faute, {u"Pause reçue", u"Pauses received", u"Pausa recibida"}},
    {1002,
     Faute,
     {u"Délai d'attente de Prêt à émettre (CTS) expiré", u"Withdrawal period of Loan to emit (CTS) expired ",
      u"Plazo de espera de Préstamo que debe emitirse (CTS) expirado"}},
    {1003,
     Faute,
     {u"Délai d'attente de Modem prêt (DSR) expiré", u"Withdrawal period of ready Modem (DSR) expired",
      u"Plazo de espera de Módem listo (DSR) expirado"}},
    {1004, Faute, {u"Erreur de cadrage", u"Misregistration", u"Error de encuadre"}},
    {1006, Faute, {u"Erreur de cadence", u"Error of rate", u"Error de ritmo"}},
    {1007,
     Faute,
     {u"Délai d'attente de Détection de porteuse (CD) expiré",
      u"Withdrawal period of Detection of carrying (CD) expired",
      u"Plazo de espera de Detección de portador (CD) expirado"}},
    {1008,
     Faute,
     {u"Dépassement du tampon de réception", u"Going beyond of the plug of receiving",
      u"Rebasamiento del tampón de recepción"}},
    {1009, Faute, {u"Erreur de parité", u"Error of parity", u"Error de paridad"}},
    {1010, Faute, {u"Tampon de transmission plein", u"Full plug of transmission", u"Tampón de transmisión lleno"}},
    {1011,
     Faute,
     {u"Erreur d'extraction de Bloc de contrôle de périphérique (DCB)",
      u"Error of extraction of Block of control of peripheral (DCB)",
      u"Error de extracción de Bloque de control de periférico (DCB)"}},
};
constexpr TexteEvenement Inconnu{
    0, Faute, {u"Erreur ou événement inconnus", u"Unknown error or event", u"Error o acontecimiento desconocidos"}};

constexpr Texte3 EnCours{u"Transfert en cours...", u"Transfer in progress...", u"Transferencia en curso..."};
// French alone has a blank before the number.
constexpr Texte3 EnCoursPasse{u"Transfert en cours... ", u"Transfer in progress...", u"Transferencia en curso..."};
constexpr Texte3 Analyse{u"Réception en cours... Analyse : ", u"Receiving in progress... Analyze : ",
                         u"Recepción en curso... Análisis : "};
constexpr Texte3 AttenteFin{u"En attente du caractère de fin de transfert...",
                            u"On standby of the character of end of transfer...",
                            u"En espera del carácter de final de transferencia..."};

constexpr qint64 PasAffichage = 40; // milliseconds between two numbers that the eye could read

Ui::Em_Rc *ecoute = nullptr; // dialog of the reception by file that waits for its events
bool enCours = false;        // that reception is already being gathered further down the stack

const TexteEvenement &LigneDe(int code)
{
    const auto *const ligne =
        std::find_if(std::begin(Textes), std::end(Textes), [code](const TexteEvenement &t) { return t.code == code; });
    return ligne == std::end(Textes) ? Inconnu : *ligne;
}

/// Takes what waits into Text2. A closed port gives nothing; a device that has gone ends the gathering, and the routine
/// below meets the same failure and tells it.
bool Prend()
{
    try {
        frmPrinc->Text2->Ajoute(frmPrinc->MSComm1->Input());
    } catch (const Erreur &erreur) {
        return erreur.Numero() != ErreurPort::Lecture;
    }
    return true;
}

void MontrePasse(Ui::Em_Rc &dialogue, int passe)
{
    PoseTexte(dialogue.Label2, EnCoursPasse, QString::number(passe));
    if (ParamCom.Echo != 1)
        return;
    PoseTexte(dialogue.Label3, Analyse, QString::number(passe));
    PoseTexte(dialogue.Label4, AttenteFin);
}

/// True when the text gathered so far ends with the end-of-transfer string, which is then cut off.
bool FinTrouvee()
{
    if (!frmPrinc->Text2->FinitPar(ParamCom.ChaineFinTrans))
        return false;
    frmPrinc->Text2->RetireFin(static_cast<int>(ParamCom.ChaineFinTrans.size()));
    FinTransfert = 1;
    return true;
}

void RecoitFichier(Ui::Em_Rc &dialogue)
{
    Prend();
    PoseTexte(dialogue.Label2, EnCours);
    QElapsedTimer depuis;
    bool vivante = true;
    int passe = 0;
    do {
        ++passe;
        CedeLaMain();
        if (!depuis.isValid() || depuis.elapsed() >= PasAffichage) {
            MontrePasse(dialogue, passe);
            depuis.start();
        }
        vivante = Prend();
    } while (!FinTrouvee() && vivante && AnnuleRECEPT != 1 && ForceRECEPT != 1);
    MontrePasse(dialogue, passe);
    if (AnnuleRECEPT == 1)
        CoupePortCOM(dialogue);
}

void Annonce(const TexteEvenement &ligne)
{
    frmPrinc->MontreEtat(Texte(ligne.texte));
    if (ligne.genre == Faute) {
        QApplication::beep();
        frmPrinc->Etat->hide();
    }
    CedeLaMain();
}

} // namespace

void MSComm1_OnComm()
{
    if (TypeTransfert == ModeBanc)
        return;
    const int code = frmPrinc->MSComm1->CommEvent();
    if (code == Reception) {
        frmPrinc->shpReceive->setFillColor(Lampe::Verte);
        if (ParamCom.TypeRecep == RecepParFichier && ecoute != nullptr && !enCours) {
            enCours = true;
            RecoitFichier(*ecoute);
            enCours = false;
        }
    }
    if (code == Debordement)
        Saute([] { frmPrinc->MSComm1->ViderReception(); });
    Annonce(LigneDe(code));
}

EcouteFichier::EcouteFichier(Ui::Em_Rc &dialogue)
{
    ecoute = &dialogue;
}

EcouteFichier::~EcouteFichier()
{
    ecoute = nullptr;
}
