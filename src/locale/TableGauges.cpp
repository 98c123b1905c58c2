#include "locale/TableLegendes.h"

namespace {

using enum Endroit;

constexpr Legende ConfMac[] = {
    {"", Titre, u"Configuration Machine : Without Name", u"Configuración Máquina : Sin Nombre"},
    {"Frame1", Titre, u"Type of machine", u"Tipo de máquina"},
    {"OptMac_0", Titre, u"Lathe machine", u"Máquina del torno"},
    {"OptMac_1", Titre, u"Milling machine", u"Máquina que muele"},
    {"Frame2", Titre, u"Type of turret", u"Tipo de torreta"},
    {"OptTour_0", Titre, u"Back turret", u"Torreta posterior"},
    {"OptTour_1", Titre, u"Front turret", u"Torreta antes"},
    {"Label4", Titre, u"Différénce Gauges in X Even/Odd Pockets :",
     u"Différénce Cabidas en X Bolsillos Uniformes/Impares :"},
    {"Frame4", Titre, u"Gauges Tools in X", u"Cabidas instrumentos en X"},
    {"OptionX_0", Titre, u"Gauges in X with the Ray", u"Cabidas en X al Rayo"},
    {"OptionX_1", Titre, u"Gauges in X with the Diameter", u"Cabidas en X al Diámetro"},
    {"Frame5", Titre, u"Any other business (Values in mm)", u"Distinto (Valores en mm.)"},
    {"Label1", Titre, u"Maximum gauge in X for alarm (Ray or Diameter) :",
     u"Capacidad Máximo en X para alarma (Rayo o Diámetro) :"},
    {"Label2", Titre, u"Maximum gauge in Z for alarm (Length Tool) :",
     u"Capacidad Máximo en Z para Alarma (Longitud instrumentos) :"},
    {"Label3", Titre, u"A number of correctors of tools (0-300) :", u"Muchos correctores de instrumentos (0-300) :"},
    {"Label5", Titre, u"Extension of the file names Gauges Tools :",
     u"Extensión de los nombres de ficheros Cabidas instrumentos :"},
    {"Label6", Titre, u"Number of program Gauges Tools in parameters E :",
     u"Número de programa Cabidas instrumentos en parámetros E :"},
    {"Frame3", Titre, u"Type of file Gauges tools", u"Tipo de fichero Cabidas instrumentos"},
    {"OptJauge_0", Titre, u"Gauges in parameters D", u"Cabidas en parámetros D"},
    {"OptJauge_1", Titre, u"Gauges in parameters E", u"Cabidas en parámetros E"},
    {"Frame7", Titre, u"Dynamic correctors ", u"Correctores dinámicos"},
    {"Label7", Titre, u"Automatic restoring", u"Entrega a Cero automática"},
    {"OptionRAZ_0", Titre, u"Yes", u"Sí"},
    {"OptionRAZ_1", Titre, u"No", u"No"},
    {"Command1", Titre, u"&Close", u"&Cerrarse"},
    {"Command2", Titre, u"&Save As...", u"&Registrar Bajo..."},
    {"Command1", Bulle, u"Firm the window of creation/modification configuration machine",
     u"Explotación la ventana de creación/modificación configuración máquina"},
    {"Command2", Bulle, u"Record the configuration machine", u"Registra la configuración máquina"},
};

constexpr Legende JauTour[] = {
    {"", Titre, u"Creation of the file measures tool", u"Creación del fichero mide instrumentos"},
    {"Label2", Titre, u"Ray of plate", u"Rayo de placa"},
    {"Command1", Titre, u"Validate...", u"Validar..."},
    {"Command1", Bulle, u"Validate the values in progress", u"Válido los valores en curso"},
    {"LabelMesure", Titre, u"Measured at the bench :", u"Medido en el banco :"},
    {"Label5", Titre, u"Ray of plate :", u"Rayo de placa :"},
    {"Label6", Titre, u"Locator :", u"Localizador :"},
};

} // namespace

const LegendesFenetre LegendesConfMac{"ConfMac", ConfMac};
const LegendesFenetre LegendesJauTour{"JauTour", JauTour};
