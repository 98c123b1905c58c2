#include "locale/TextesErreur.h"

#include "locale/Langue.h"

#include <algorithm>
#include <iterator>

namespace {

/// The text of a number of the serial control.
struct TextePort
{
    int numero;
    Texte3 texte;
};

constexpr TextePort TextesPort[] = {
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

/// The text of one of the other numbers.
struct TexteSysteme
{
    int numero;
    bool avecDetails; ///< the platform's words say something to an operator: a file, a device, a cause
    Texte3 texte;
};

constexpr TexteSysteme TextesSysteme[] = {
    {Erreur::Depassement,
     true,
     {u"Un nombre est trop grand pour le champ qui doit le recevoir.",
      u"A number is too large for the field that has to hold it.",
      u"Un número es demasiado grande para el campo que debe recibirlo."}},
    {Erreur::MemoireInsuffisante,
     false,
     {u"Le texte est trop grand pour la mémoire.", u"The text is too large for the memory.",
      u"El texto es demasiado grande para la memoria."}},
    {Erreur::IndiceHorsPlage, true, {u"La table est pleine.", u"The table is full.", u"La tabla está llena."}},
    {Erreur::TypeIncompatible,
     true,
     {u"Une valeur du fichier n'a pas la forme attendue.", u"A value in the file has not the expected form.",
      u"Un valor del fichero no tiene la forma esperada."}},
    {Erreur::FichierIntrouvable,
     true,
     {u"Le fichier ou le dossier est introuvable.", u"The file or directory cannot be found.",
      u"No se encuentra el fichero o el directorio."}},
    {Erreur::ErreurFichier,
     true,
     {u"La lecture ou l'écriture a échoué.", u"Reading or writing has failed.",
      u"La lectura o la escritura ha fallado."}},
    {Erreur::DisqueSature, true, {u"Le disque est plein.", u"The disk is full.", u"El disco está lleno."}},
    {Erreur::FinDeFichier,
     false,
     {u"Le fichier est incomplet.", u"The file is incomplete.", u"El fichero está incompleto."}},
    {Erreur::AccesRefuse, true, {u"L'accès est refusé.", u"Access is refused.", u"El acceso está denegado."}},
    {Erreur::FormatRefuse,
     false,
     {u"Le fichier n'est pas un texte enrichi.", u"The file is no rich text.",
      u"El fichero no es un texto enriquecido."}},
    {Erreur::MotifRefuse,
     true,
     {u"Ce filtre ne convient pas à un nom de fichier.", u"This filter does not fit a file name.",
      u"Este filtro no conviene a un nombre de fichero."}},
    {Erreur::DialogueAnnule,
     false,
     {u"L'opérateur a annulé.", u"The operator has cancelled.", u"El operador ha cancelado."}},
};

/// The row of the number in one of the tables, or nullptr.
template <typename Table>
const auto *Ligne(const Table &table, int numero)
{
    const auto trouve = std::find_if(std::begin(table), std::end(table),
                                     [numero](const auto &ligne) { return ligne.numero == numero; });
    return trouve == std::end(table) ? nullptr : &*trouve;
}

QString AvecDetails(const QString &texte, const Erreur &erreur)
{
    return texte + u'\r' + erreur.Description();
}

} // namespace

QString TexteErreur(const Erreur &erreur)
{
    if (const auto *const port = Ligne(TextesPort, erreur.Numero()))
        return Texte(port->texte);
    const auto *const systeme = Ligne(TextesSysteme, erreur.Numero());
    if (systeme == nullptr)
        return erreur.Description();
    return systeme->avecDetails ? AvecDetails(Texte(systeme->texte), erreur) : Texte(systeme->texte);
}

QString TexteErreurDetaille(const Erreur &erreur)
{
    const QString texte = TexteErreur(erreur);
    return Ligne(TextesPort, erreur.Numero()) != nullptr ? AvecDetails(texte, erreur) : texte;
}
