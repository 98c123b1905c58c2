#include "locale/TableLegendes.h"

namespace {

using enum Endroit;

constexpr Legende Em_Rc[] = {
    {"", Titre, u"Transfer", u"Transferencia"},
    {"Frame2", Titre, u"Configuration of selected communication ", u"Configuración de comunicación seleccionada"},
    {"Command3", Titre, u"Select another Configuration...", u"Seleccionar otra &Configuración..."},
    {"Command3", Bulle, u"Selection of another configuration of communication",
     u"Selección de otra configuración de comunicación"},
    {"Command7", Titre, u"Impose the end of receiving", u"Forzar el final de recepción"},
    {"Command7", Bulle, u"Force the end of receiving - Records the received lines",
     u"Fuerza el final de recepción - Registre las líneas recibidas"},
    {"Command1", Titre, u"&Cancel", u"&Cancelar"},
    {"Command1", Bulle, u"Cancel the transfer", u"Cancela la transferencia"},
    {"Command2", Titre, u"Sending...", u"Emisión..."},
    {"Command2", Bulle, u"Sending of the program", u"Emisión del programa"},
    {"Command4", Titre, u"&Cancel...", u"&Cancelar..."},
    {"Command5", Titre, u"&Following gauge...>", u"&Capacidad siguiente...>"},
    {"Command6", Titre, u"&End of receiving", u"&Terminar la transferencia"},
    {"Command4", Bulle, u"Cancel Sending of gauge", u"Cancela la transferencia"},
    {"Command5", Bulle, u"Receiving following gauge", u"Recepción de una nueva capacidad instrumentos"},
    {"Command6", Bulle, u"End of receiving gauge tool", u"Final de la transferencia de las Cabidas instrumentos"},
    {"Picture1", Nom, u"Transfer", u"Transferencia"},
    {"Picture2", Nom, u"Presetting bench", u"Banco de reglaje previo"},
    {"Progression", Nom, u"Progress of the transfer", u"Avance de la transferencia"},
    {"BilanSigne", Nom, u"Warning", u"Advertencia"},
};

constexpr Legende Rc_Fic[] = {
    {"", Titre, u"Receiving of a file", u"Recepción de un fichero"},
    {"Frame3", Titre, u"Name of the file to be received", u"Nombre del fichero que debe recibirse"},
    {"Label1", Titre, u"File name :", u"Nombre del fichero :"},
    {"Label2", Titre, u"Select the file extension :", u"Seleccionar la extensión del fichero :"},
    {"Frame2", Titre, u"Directory of receiving", u"Expediente de recepción"},
    {"Command3", Titre, u"Select another repertory...", u"Seleccionar otro directorio..."},
    {"Command3", Bulle, u"Choice of another directory of receiving", u"Elección de otro directorio de recepción"},
    {"Frame4", Titre, u"Configuration of communication", u"Configuración de comunicación"},
    {"Command4", Titre, u"Select another Configuration...", u"Seleccionar otra &Configuración..."},
    {"Command4", Bulle, u"Choice of another configuration of communication",
     u"Elección de otra configuración de comunicación"},
    {"Frame1", Titre, u"Confirm the receiving of the file", u"Confirmar la recepción del fichero"},
    {"Command1", Titre, u"&Cancel", u"&Cancelar"},
    {"Command1", Bulle, u"Cancel the transfer", u"Cancela la transferencia"},
    {"Command2", Titre, u"&Receive...", u"&Recibir..."},
    {"Command2", Bulle, u"Confirmation of the receiving of a file", u"Confirmación de la recepción de un fichero"},
    {"Frame5", Titre, u"Option end of line in receiving ", u"Opción fino de línea en recepción "},
    {"Option1_0", Titre, u"No end of line", u"No hay final de línea"},
    {"Picture1", Nom, u"Transfer", u"Transferencia"},
};

} // namespace

const LegendesFenetre LegendesEm_Rc{"Em_Rc", Em_Rc};
const LegendesFenetre LegendesRc_Fic{"Rc_Fic", Rc_Fic};
