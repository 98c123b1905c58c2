#pragma once

#include <QString>

#include <span>

class MSComm;

// The settings that the serial control takes from ParamCom.

/// Sets one property of the control from ParamCom. Raises what the control raises.
using EtapeReglage = void (*)(MSComm &controle);

/// The steps that set all properties but the port number, in their order: the lines RTS and DTR get their state before
/// the port opens.
std::span<const EtapeReglage> EtapesReglage();

/// The property Settings: speed, parity, data bits and stop bits in one text. parite: the letter for the parity, in
/// upper or lower case as wanted there.
QString TexteReglage(const QString &parite);
