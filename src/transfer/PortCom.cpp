#include "transfer/PortCom.h"

#include "comconfig/ParamCom.h"
#include "comconfig/ReglagesCom.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "platform/MSComm.h"
#include "platform/Nombres.h"
#include "platform/PageCode1252.h"
#include "shell/FrmPrinc.h"
#include "ui_Em_Rc.h"

namespace {

struct TexteErreur
{
    int numero;
    Texte3 texte;
};

constexpr TexteErreur Textes[] = {
    {1001,
     {u"Réception d'un signal d'interruption.", u"Receiving of a signal of interruption.",
      u"Recepción de una señal de interrupción."}},
    {1002,
     {u"Temporisation du signal Prêt à émettre.", u"Temporization of the signal Ready to emit.",
      u"Contemporización de la señal Lista para emitir."}},
    {1003,
     {u"Temporisation du signal Modem prêt.", u"Temporization of the signal ready Modem.",
      u"Contemporización de la señal Módem listo."}},
    {1004, {u"Erreur de verrouillage de trame.", u"Error of locking of screen.", u"Error de bloqueo de trama."}},
    {1006,
     {u"Dépassement de capacité du port.", u"Capacity overshooting of the port.",
      u"Rebasamiento de capacidad del puerto."}},
    {1007,
     {u"Temporisation du signal Détection de porteuse.", u"Temporization of the signal Detection of carrying.",
      u"Contemporización de la señal Detección de portadora."}},
    {1008,
     {u"Dépassement de capacité de la zone tampon de réception.",
      u"Capacity overshooting of the buffer zone of receiving.",
      u"Rebasamiento de capacidad de la zona tampón de recepción."}},
    {1009, {u"Erreur de parité.", u"Error of parity.", u"Error de paridad."}},
    {1010,
     {u"Mémoire zone d'émission saturée.", u"Memory zone of saturated emission.",
      u"Memoria zona de emisión saturada."}},
    {8000,
     {u"Opération non valide quand le port est ouvert", u"Nonvalid operation when the port is open",
      u"Operación no válida cuando el puerto está abierto"}},
    {8001,
     {u"La valeur du délai d'attente doit être supérieure à zéro",
      u"The value of the withdrawal period must be higher than zero",
      u"El valor del plazo de espera debe ser superior a cero"}},
    {8002, {u"Numéro de port non valide", u"Nonvalid number of port", u"Número de puerto no válido"}},
    {8003,
     {u"Propriété disponible uniquement lors de l'exécution", u"Property available only at the time of the execution",
      u"Propiedad disponible solamente en la ejecución"}},
    {8004,
     {u"Propriété en lecture seule lors de l'exécution", u"Property in reading alone at the time of the execution",
      u"Propiedad en sola lectura en la ejecución"}},
    {8005, {u"Port déjà ouvert", u"Already open port", u"Port ya abierto"}},
    {8006,
     {u"Identificateur du périphérique non valide ou non pris en charge",
      u"Identifier of the nonvalid peripheral or not dealt with",
      u"Identificador del periférico no válido o no asumido"}},
    {8007,
     {u"Le débit en bauds du périphérique n'est pas pris en charge",
      u"The baud rate of the peripheral is not dealt with", u"No se acepta la producción en baudios del periférico"}},
    {8008,
     {u"La taille d'octet spécifiée n'est pas valide", u"The size of byte specified is not valid",
      u"El tamaño de octeto especificado no es válido"}},
    {8009,
     {u"Les paramètres par défaut sont erronés", u"The default settings are erroneous",
      u"Los parámetros por defecto son erróneos"}},
    {8010,
     {u"Le matériel n'est pas disponible (verrouillé par un autre périphérique)",
      u"The material is not available (locked by another peripheral)",
      u"El material no está disponible (cerrado por otro periférico)"}},
    {8011,
     {u"La fonction ne peut pas allouer les files d'attente", u"The function cannot allocate the queues",
      u"La función no puede asignar las filas de espera"}},
    {8012, {u"Le périphérique n'est pas ouvert", u"The peripheral is not open", u"El periférico no está abierto"}},
    {8013, {u"Le périphérique est déjà ouvert", u"The peripheral is already open", u"El periférico está ya abierto "}},
    {8014,
     {u"Impossible d'activer la notification de communication",
      u"Impossible to activate the notification of communication",
      u"Imposible de activar la notificación de comunicación"}},
    {8015,
     {u"Impossible de définir l'état de communication", u"Impossible to define the state of communication",
      u"Imposible de definir el estado de comunicación"}},
    {8016,
     {u"Impossible de définir le masque de l'événement Communication",
      u"Impossible to define the mask of the event Communication",
      u"Imposible de definir la máscara del acontecimiento Comunicación"}},
    {8018,
     {u"Opération valide uniquement quand le port est ouvert", u"Operation validates only when the port is open ",
      u"Operación válida solamente cuando el puerto está abierto"}},
    {8019, {u"Périphérique occupé", u"Occupied peripheral", u"Periférico ocupado"}},
    {8020,
     {u"Erreur de lecture du périphérique de communication", u"Misreading of the peripheral of communication",
      u"Error de lectura del periférico de comunicación"}},
    {8086,
     {u"Numéro de Port de communication invalide.", u"Number of invalid port of communication.",
      u"Número del Puerto de comunicación inválida."}},
};

constexpr Texte3 ErreurNumero{u"Erreur N°: ", u"Error N°: ", u"Error N°: "};
constexpr Texte3 Fermeture{u"Fermeture du port de communication", u"Closing of the port of communication",
                           u"Cierre del puerto de comunicación"};
constexpr Texte3 PortFermeTexte{u"Port Fermé", u"Closed Port", u"Port Cerrado"};
constexpr Texte3 SansDroit{
    u"\rLes ports série sont réservés au groupe dialout. S'y inscrire une fois, dans un terminal :\r"
    u"    sudo adduser $USER dialout\rpuis fermer la session et la rouvrir.",
    u"\rThe serial ports are reserved to the group dialout. Join it once, in a terminal:\r"
    u"    sudo adduser $USER dialout\rthen log out and in again.",
    u"\rLos puertos serie están reservados al grupo dialout. Inscribirse una vez, en un terminal:\r"
    u"    sudo adduser $USER dialout\rluego cerrar la sesión y volver a abrirla."};
constexpr Texte3 Fermer{u"&Fermer", u"&Close", u"&Cerrarse"};

/// Closes the port for an operator who has turned away from the transfer.
void FermeSansMessage()
{
    Saute([] { Controle().setPortOpen(false); });
    PortOuvert = false;
}

void MontreErreur(const Erreur &erreur, const QString &texte)
{
    MsgBox(texte, Boite::Critique, Texte(ErreurNumero) + TexteNombre(erreur.Numero()) + Texte(Fermeture));
}

} // namespace

MSComm &Controle()
{
    return *frmPrinc->MSComm1;
}

void OuvrePortCOM()
{
    MSComm &controle = Controle();
    try {
        for (const EtapeReglage etape : EtapesReglage())
            etape(controle);
        if (controle.PortOpen())
            return;
        controle.setCommPort(ParamCom.NumPort);
        controle.setPortOpen(true);
        frmPrinc->MontrePort(true);
        PortOuvert = true;
    } catch (const Erreur &erreur) {
        // The system's words name the device; how to get the right to it, only we can tell.
        const QString conseil = erreur.Numero() == Erreur::AccesRefuse ? Texte(SansDroit) : QString();
        MontreErreur(erreur, TexteErreurPort(erreur) + conseil);
    }
}

void FermePortCOM(Ui::Em_Rc &dialogue)
{
    MSComm &controle = Controle();
    try {
        if (!controle.PortOpen())
            return;
        controle.setPortOpen(false);
        frmPrinc->MontrePort(false, Texte(PortFermeTexte));
        PortOuvert = false;
    } catch (const Erreur &erreur) {
        MontreErreur(erreur, TexteErreurPort(erreur));
        BoutonFermer(*dialogue.Command1);
    }
}

void BoutonFermer(QPushButton &bouton)
{
    PoseTexte(&bouton, Fermer);
}

void MontreLabelsEcho(Ui::Em_Rc &dialogue)
{
    dialogue.Label3->setVisible(ParamCom.Echo == 1);
    dialogue.Label4->setVisible(ParamCom.Echo == 1);
}

void EcritEcho(QLabel &label, const QString &texte)
{
    // A program without the line ends of the configuration is one line, and laying it out would hold up its transfer.
    constexpr int place = 2000; // characters
    label.setText(ControlesVisibles(texte.left(place)));
}

void ErreurPortCOM(const Erreur &erreur, Ui::Em_Rc &dialogue)
{
    MontreErreur(erreur, TexteErreurPort(erreur));
    FermePortCOM(dialogue);
}

void CoupePortCOM(Ui::Em_Rc &dialogue)
{
    if (!Controle().PortOpen())
        return;
    PoseTexte(dialogue.Label2, Fermeture);
    FermeSansMessage();
}

QString TexteErreurPort(const Erreur &erreur)
{
    for (const TexteErreur &ligne : Textes) {
        if (ligne.numero == erreur.Numero())
            return Texte(ligne.texte);
    }
    return erreur.Description();
}

void Mnu_Com()
{
    PortOuvert = Controle().PortOpen();
    frmPrinc->Mnu_FermePortCom->setEnabled(PortOuvert);
}

void Mnu_FermePortCom()
{
    if (Controle().PortOpen())
        FermeSansMessage();
}
