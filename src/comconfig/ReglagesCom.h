#pragma once

#include <QString>

#include <span>

class MSComm;

// What of ParamCom the serial control takes.

/// Gives one setting to the control. Raises what the control refuses.
using EtapeReglage = void (*)(MSComm &controle);

/// All of them but the port number, in their order: the lines take their state before the port opens.
std::span<const EtapeReglage> EtapesReglage();

/// Speed, parity, data bits and stop bits as one text. parite: the letter, in the case in which the control is to have
/// it.
QString TexteReglage(const QString &parite);
