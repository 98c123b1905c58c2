#include "transfer/EvenementsCom.h"

#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/Erreur.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Bilan.h"
#include "transfer/ReceptionFichier.h"

#include <QApplication>

#include <algorithm>

namespace {

enum Genre { Evenement, Faute };

struct TexteEvenement
{
    int code;
    Genre genre;
    Texte3 texte;
};

namespace E = EvenementPort;

// The control does not raise all of them, see EvenementPort. The texts of the others stay, since the operators' papers
// list them by number. A code without a text would be shown as unknown.
constexpr TexteEvenement Textes[] = {
    {E::Reception,
     Evenement,
     {u"Réception d'un évènement", u"Receiving of an event", u"Recepción de un acontecimiento"}},
    {E::Emission, Evenement, {u"Envoi d'un événement.", u"Sending of an event.", u"Envío de un acontecimiento."}},
    {E::Cts,
     Evenement,
     {u"Changement de Prêt à émettre (CTS) détecté", u"Change of Loan to be emitted (CTS) detected",
      u"Cambio de Préstamo que debe emitirse (CTS) detectado"}},
    {E::Dsr,
     Evenement,
     {u"Changement de Modem prêt (DSR) détecté", u"Change of ready Modem (DSR) detected",
      u"Cambio de Módem listo (DSR) detectado"}},
    {E::Cd,
     Evenement,
     {u"Changement de Détection de porteuse (CD) détecté", u"Change of Detection of carrying (CD) detected",
      u"Cambio de Detección de portador (CD) detectado"}},
    {E::Sonnerie,
     Evenement,
     {u"Le téléphone sonne - Détection d'anneau.", u"The telephone sounds - Detection of ring.",
      u"El teléfono suena - Detección de anillo."}},
    {E::FinDeFichier, Evenement, {u"Fin de fichier détecté", u"End of detected file", u"Final de fichero detectado"}},
    {E::Pause, Faute, {u"Pause reçue", u"Pauses received", u"Pausa recibida"}},
    {E::DelaiCts,
     Faute,
     {u"Délai d'attente de Prêt à émettre (CTS) expiré", u"Withdrawal period of Loan to emit (CTS) expired ",
      u"Plazo de espera de Préstamo que debe emitirse (CTS) expirado"}},
    {E::DelaiDsr,
     Faute,
     {u"Délai d'attente de Modem prêt (DSR) expiré", u"Withdrawal period of ready Modem (DSR) expired",
      u"Plazo de espera de Módem listo (DSR) expirado"}},
    {E::Cadrage, Faute, {u"Erreur de cadrage", u"Misregistration", u"Error de encuadre"}},
    {E::Cadence, Faute, {u"Erreur de cadence", u"Error of rate", u"Error de ritmo"}},
    {E::DelaiCd,
     Faute,
     {u"Délai d'attente de Détection de porteuse (CD) expiré",
      u"Withdrawal period of Detection of carrying (CD) expired",
      u"Plazo de espera de Detección de portador (CD) expirado"}},
    {E::Perte,
     Faute,
     {u"Dépassement du tampon de réception", u"Going beyond of the plug of receiving",
      u"Rebasamiento del tampón de recepción"}},
    {E::Parite, Faute, {u"Erreur de parité", u"Error of parity", u"Error de paridad"}},
    {E::EmissionPleine,
     Faute,
     {u"Tampon de transmission plein", u"Full plug of transmission", u"Tampón de transmisión lleno"}},
    {E::BlocControle,
     Faute,
     {u"Erreur d'extraction de Bloc de contrôle de périphérique (DCB)",
      u"Error of extraction of Block of control of peripheral (DCB)",
      u"Error de extracción de Bloque de control de periférico (DCB)"}},
};
constexpr TexteEvenement Inconnu{
    0, Faute, {u"Erreur ou événement inconnus", u"Unknown error or event", u"Error o acontecimiento desconocidos"}};

const TexteEvenement &LigneDe(int code)
{
    const auto *const ligne =
        std::find_if(std::begin(Textes), std::end(Textes), [code](const TexteEvenement &t) { return t.code == code; });
    return ligne == std::end(Textes) ? Inconnu : *ligne;
}

void Annonce(const TexteEvenement &ligne)
{
    frmPrinc->MontreEtat(TexteChoisi(ligne.texte));
    if (ligne.genre == Faute) {
        QApplication::beep();
        frmPrinc->Etat->hide();
    }
    CedeLaMain();
}

} // namespace

void MSComm1_OnComm()
{
    if (Transfert.TypeTransfert == ReceptionBanc)
        return;
    const int code = frmPrinc->MSComm1->CommEvent();
    if (code == E::Reception) {
        frmPrinc->shpReceive->setFillColor(Lampe::Verte);
        RecolteFichier();
    }
    if (code == E::Perte)
        Saute([] { NotePerte(Perte::Debordement, frmPrinc->MSComm1->VideReception()); });
    Annonce(LigneDe(code));
}
