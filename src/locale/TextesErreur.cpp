#include "locale/TextesErreur.h"

#include "locale/Langue.h"
#include "platform/base/Cause.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/EvenementPort.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

/// A number of the serial control and its text.
struct TextePort
{
    int numero;
    Texte3 texte;
};

// The control raises only the numbers of ErreurPort. The texts of the others stay because the operators' papers list
// them by number.
constexpr TextePort TextesPort[] = {
    {EvenementPort::Pause,
     {u"Réception d'un signal d'interruption.", u"Receiving of a signal of interruption.",
      u"Recepción de una señal de interrupción."}},
    {EvenementPort::DelaiCts,
     {u"Temporisation du signal Prêt à émettre.", u"Temporization of the signal Ready to emit.",
      u"Contemporización de la señal Lista para emitir."}},
    {EvenementPort::DelaiDsr,
     {u"Temporisation du signal Modem prêt.", u"Temporization of the signal ready Modem.",
      u"Contemporización de la señal Módem listo."}},
    {EvenementPort::Cadrage,
     {u"Erreur de verrouillage de trame.", u"Error of locking of screen.", u"Error de bloqueo de trama."}},
    {EvenementPort::Cadence,
     {u"Dépassement de capacité du port.", u"Capacity overshooting of the port.",
      u"Rebasamiento de capacidad del puerto."}},
    {EvenementPort::DelaiCd,
     {u"Temporisation du signal Détection de porteuse.", u"Temporization of the signal Detection of carrying.",
      u"Contemporización de la señal Detección de portadora."}},
    {EvenementPort::Perte,
     {u"Dépassement de capacité de la zone tampon de réception.",
      u"Capacity overshooting of the buffer zone of receiving.",
      u"Rebasamiento de capacidad de la zona tampón de recepción."}},
    {EvenementPort::Parite, {u"Erreur de parité.", u"Error of parity.", u"Error de paridad."}},
    {EvenementPort::EmissionPleine,
     {u"Mémoire zone d'émission saturée.", u"Memory zone of saturated emission.",
      u"Memoria zona de emisión saturada."}},
    {ErreurPort::DejaOuvert,
     {u"Opération non valide quand le port est ouvert", u"Nonvalid operation when the port is open",
      u"Operación no válida cuando el puerto está abierto"}},
    {8001,
     {u"La valeur du délai d'attente doit être supérieure à zéro",
      u"The value of the withdrawal period must be higher than zero",
      u"El valor del plazo de espera debe ser superior a cero"}},
    {ErreurPort::Inconnu, {u"Numéro de port non valide", u"Nonvalid number of port", u"Número de puerto no válido"}},
    {8003,
     {u"Propriété disponible uniquement lors de l'exécution", u"Property available only at the time of the execution",
      u"Propiedad disponible solamente en la ejecución"}},
    {8004,
     {u"Propriété en lecture seule lors de l'exécution", u"Property in reading alone at the time of the execution",
      u"Propiedad en sola lectura en la ejecución"}},
    {ErreurPort::Occupe, {u"Port déjà ouvert", u"Already open port", u"Port ya abierto"}},
    {ErreurPort::PasUneLigne,
     {u"Identificateur du périphérique non valide ou non pris en charge",
      u"Identifier of the nonvalid peripheral or not dealt with",
      u"Identificador del periférico no válido o no asumido"}},
    {ErreurPort::Vitesse,
     {u"Le débit en bauds du périphérique n'est pas pris en charge",
      u"The baud rate of the peripheral is not dealt with", u"No se acepta la producción en baudios del periférico"}},
    {ErreurPort::BitsDonnees,
     {u"La taille d'octet spécifiée n'est pas valide", u"The size of byte specified is not valid",
      u"El tamaño de octeto especificado no es válido"}},
    {8009,
     {u"Les paramètres par défaut sont erronés", u"The default settings are erroneous",
      u"Los parámetros por defecto son erróneos"}},
    {ErreurPort::Indisponible,
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
    {ErreurPort::Reglage,
     {u"Impossible de définir l'état de communication", u"Impossible to define the state of communication",
      u"Imposible de definir el estado de comunicación"}},
    {8016,
     {u"Impossible de définir le masque de l'événement Communication",
      u"Impossible to define the mask of the event Communication",
      u"Imposible de definir la máscara del acontecimiento Comunicación"}},
    {ErreurPort::Ferme,
     {u"Opération valide uniquement quand le port est ouvert", u"Operation validates only when the port is open ",
      u"Operación válida solamente cuando el puerto está abierto"}},
    {8019, {u"Périphérique occupé", u"Occupied peripheral", u"Periférico ocupado"}},
    {ErreurPort::Lecture,
     {u"Erreur de lecture du périphérique de communication", u"Misreading of the peripheral of communication",
      u"Error de lectura del periférico de comunicación"}},
    {8086,
     {u"Numéro de Port de communication invalide.", u"Number of invalid port of communication.",
      u"Número del Puerto de comunicación inválida."}},
};

/// Any other number and its text.
struct TexteSysteme
{
    int numero;
    bool avecDetails; ///< the object (file, device, value) and the cause are shown below the text
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
    {Erreur::SansImprimante,
     false,
     {u"Aucune imprimante n'est installée sur ce PC. Ajoutez-en une dans les paramètres du système.",
      u"No printer is installed on this PC. Add one in the settings of the system.",
      u"No hay ninguna impresora instalada en este PC. Añada una en la configuración del sistema."}},
    {Erreur::DialogueAnnule,
     false,
     {u"L'opérateur a annulé.", u"The operator has cancelled.", u"El operador ha cancelado."}},
};

/// A cause, and its text for the operator.
struct TexteCause
{
    Cause cause;
    int dit; ///< number of Erreur whose text already says the same; 0: none
    Texte3 texte;
};

constexpr TexteCause TextesCause[] = {
    {Cause::Absent,
     Erreur::FichierIntrouvable,
     {u"Le fichier, le dossier ou l'appareil n'existe pas.", u"The file, directory or device does not exist.",
      u"El fichero, el directorio o el aparato no existe."}},
    {Cause::PasUnDossier,
     0,
     {u"Un nom du chemin n'est pas celui d'un dossier.", u"A name in the path is not that of a directory.",
      u"Un nombre de la ruta no es el de un directorio."}},
    {Cause::EstUnDossier,
     0,
     {u"Ce nom est celui d'un dossier.", u"This name is that of a directory.", u"Este nombre es el de un directorio."}},
    {Cause::ExisteDeja, 0, {u"Ce nom existe déjà.", u"This name exists already.", u"Este nombre ya existe."}},
    {Cause::NomTropLong, 0, {u"Le nom est trop long.", u"The name is too long.", u"El nombre es demasiado largo."}},
    {Cause::SansDroits,
     Erreur::AccesRefuse,
     {u"Les droits ne suffisent pas.", u"The rights do not suffice.", u"Los derechos no bastan."}},
    {Cause::NonPermis,
     Erreur::AccesRefuse,
     {u"Le système ne le permet pas.", u"The system does not permit it.", u"El sistema no lo permite."}},
    {Cause::ProtegeEnEcriture,
     0,
     {u"Le disque est protégé contre l'écriture.", u"The disk is write-protected.",
      u"El disco está protegido contra escritura."}},
    {Cause::DisquePlein,
     Erreur::DisqueSature,
     {u"Il n'y a plus de place.", u"There is no room left.", u"No queda sitio."}},
    {Cause::QuotaEpuise,
     0,
     {u"La place accordée à cet utilisateur est épuisée.", u"The room granted to this user is used up.",
      u"El espacio concedido a este usuario está agotado."}},
    {Cause::FichierTropGrand,
     0,
     {u"Le fichier est trop grand pour ce disque.", u"The file is too large for this disk.",
      u"El fichero es demasiado grande para este disco."}},
    {Cause::TropDeFichiers,
     0,
     {u"Le programme a trop de fichiers ouverts.", u"The program has too many files open.",
      u"El programa tiene demasiados ficheros abiertos."}},
    {Cause::TropDeFichiersSysteme,
     0,
     {u"Le système a trop de fichiers ouverts.", u"The system has too many files open.",
      u"El sistema tiene demasiados ficheros abiertos."}},
    {Cause::TropDeLiens,
     0,
     {u"Ce nom a trop de liens.", u"This name has too many links.", u"Este nombre tiene demasiados enlaces."}},
    {Cause::LiensEnBoucle,
     0,
     {u"Le chemin passe par trop de liens.", u"The path leads through too many links.",
      u"La ruta pasa por demasiados enlaces."}},
    {Cause::DossierNonVide,
     0,
     {u"Le dossier n'est pas vide.", u"The directory is not empty.", u"El directorio no está vacío."}},
    {Cause::Utilise,
     0,
     {u"Il est utilisé par un autre programme.", u"It is in use by another program.",
      u"Otro programa lo está utilizando."}},
    {Cause::NonAccepte,
     0,
     {u"Le système n'accepte pas ce nom ou ce réglage.", u"The system does not accept this name or setting.",
      u"El sistema no acepta este nombre o este ajuste."}},
    {Cause::NeRepondPlus,
     0,
     {u"Le disque ou l'appareil ne répond plus.", u"The disk or device no longer answers.",
      u"El disco o el aparato ya no responde."}},
    {Cause::AppareilParti, 0, {u"L'appareil n'est plus là.", u"The device is gone.", u"El aparato ya no está."}},
    {Cause::AppareilAbsent, 0, {u"L'appareil n'est pas là.", u"The device is not there.", u"El aparato no está."}},
};

constexpr Texte3 CauseInconnue{u"Cause inconnue, numéro %1.", u"Unknown cause, number %1.",
                               u"Causa desconocida, número %1."};

/// The row of a table that has this number; nullptr when none has.
template <typename Table>
const auto *Ligne(const Table &table, int numero)
{
    const auto trouve = std::find_if(std::begin(table), std::end(table),
                                     [numero](const auto &ligne) { return ligne.numero == numero; });
    return trouve == std::end(table) ? nullptr : &*trouve;
}

/// The text of the cause; empty when there is no cause or the text of the failure already says it.
QString TexteDeCause(const Erreur &erreur)
{
    if (erreur.Cause() == 0)
        return {};
    const auto *const cause = std::ranges::find(TextesCause, CauseDe(erreur.Cause()), &TexteCause::cause);
    if (cause == std::end(TextesCause))
        return Texte(CauseInconnue).arg(erreur.Cause());
    return cause->dit == erreur.Numero() ? QString() : Texte(cause->texte);
}

QString AvecDetails(const QString &texte, const Erreur &erreur)
{
    QStringList lignes{texte, erreur.Objet(), TexteDeCause(erreur)};
    lignes.removeAll(QString());
    return lignes.join(u'\r');
}

} // namespace

QString TexteErreur(const Erreur &erreur)
{
    if (const auto *const port = Ligne(TextesPort, erreur.Numero()))
        return Texte(port->texte);
    const auto *const systeme = Ligne(TextesSysteme, erreur.Numero());
    if (systeme == nullptr)
        return AvecDetails(QString(), erreur);
    return systeme->avecDetails ? AvecDetails(Texte(systeme->texte), erreur) : Texte(systeme->texte);
}

QString TexteErreurDetaille(const Erreur &erreur)
{
    const QString texte = TexteErreur(erreur);
    return Ligne(TextesPort, erreur.Numero()) != nullptr ? AvecDetails(texte, erreur) : texte;
}
