#include "locale/TableLegendes.h"

namespace {

using enum Endroit;

constexpr Legende FrmCaract[] = {
    {"", Titre, u"Assignment of character", u"Asignación de carácter"},
    {"Frame1", Titre, u"Choice of the characters ", u"Elección de los caracteres "},
    {"Frame3", Titre, u"Personalized character ", u"Carácter personalizado "},
    {"Command6", Titre, u"Apply...", u"Aplicarse..."},
    {"Label3", Titre, u"Character or character string :", u"Carácter o cadena de caracteres :"},
    {"Command1", Titre, u"Apply...", u"Aplicarse..."},
    {"Command1", Bulle, u"Apply and close the window", u"Aplique y cerrar la ventana"},
    {"Command2", Titre, u"&Erase", u"&Borrar"},
    {"Command2", Bulle, u"Erase / Réinitialise", u"Borre / Reinicializa"},
    {"Command3", Titre, u"&Cancel", u"&Cancelar"},
    {"Command3", Bulle, u"Cancel last insertion", u"Cancela la última inserción"},
};

constexpr Legende DosProg[] = {
    {"", Titre, u"Select directory of receiving of the Programs",
     u"Elección del directorio de recepción de los Programas"},
    {"Command1", Titre, u"&Apply", u"&Aplicarse"},
    {"Command2", Titre, u"&Close", u"&Cerrarse"},
    {"Command3", Titre, u"Create under directory...", u"Crear uno bajo directorio..."},
    {"Label1", Titre, u"Directory Name :", u"Nombre directorio :"},
    {"Command1", Bulle, u"Apply the choice of under directory of receiving",
     u"Aplica la elección de bajo directorio de recepción"},
    {"Command2", Bulle, u"Close the window in progress", u"Explotación la ventana en curso"},
    {"Command3", Bulle, u"Create under repertory after the directory in progress",
     u"Crear uno bajo directorio después del directorio en curso"},
    {"Command4", Bulle, u"Validate the name of the directory", u"Válido el nombre del directorio"},
    {"FolderTreeview1", Nom, u"Directories", u"Directorios"},
};

constexpr Legende FrmConfDem[] = {
    {"", Titre, u"Configuration of starting", u"Configuración de comienzo"},
    {"Frame1", Titre, u"Select a directory failing this for the opening of the programs or files gauges tools ",
     u"Elección de un directorio a defecto para la apertura los programas o ficheros Cabidas instrumentos"},
    {"Check1", Titre, u"Use this directory failing this for the loading of the programs",
     u"Utilizar este directorio a defecto para el cargamento de los programas"},
    {"Label1", Titre, u"Directory name :", u"Nombre del directorio :"},
    {"Command1", Bulle, u"Traverse...", u"Recorrer..."},
    {"Frame2", Titre, u"Configuration of communication to be selected with launching of Dorvanel",
     u"Configuración de comunicación que debe encargarse al lanzamiento de Dorvanel"},
    {"Check2", Titre, u"Select the configuration machine failing this with launching",
     u"Encargar la configuración máquina a defecto al lanzamiento"},
    {"Label2", Titre, u"Configuration failing this :", u"Configuración a defecto :"},
    {"Command2", Bulle, u"Select a configuration of communication", u"Seleccionar una configuración de comunicación"},
    {"Frame4", Titre, u"Explorer of files ", u"Explorador de ficheros "},
    {"Check3", Titre, u"View the explorer of files to the launching of Dorvanel Pro",
     u"Indicar el explorador de ficheros al lanzamiento de Dorvanel Pro"},
    {"Frame5", Titre, u"Select the file of safeguard of the files of configuration of communication",
     u"Elección del expediente de protección de los ficheros de configuración de comunicación"},
    {"Label3", Titre, u"Configuration Directory :", u"Directorio de configuración:"},
    {"Command5", Bulle, u"Traverse...", u"Recorrer..."},
    {"Command3", Titre, u"&Close", u"&Cerrarse"},
    {"Command3", Bulle, u"Close the window", u"Cerrar la ventana"},
    {"Command4", Titre, u"&Save", u"&Registrar"},
    {"Command4", Bulle, u"Apply and records the parameters", u"Aplique y registra los parámetros"},
    {"Command6", Titre, u"Language...", u"Lengua..."},
};

} // namespace

const LegendesFenetre LegendesFrmCaract{"FrmCaract", FrmCaract};
const LegendesFenetre LegendesDosProg{"DosProg", DosProg};
const LegendesFenetre LegendesFrmConfDem{"FrmConfDem", FrmConfDem};
