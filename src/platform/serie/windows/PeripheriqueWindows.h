#pragma once

#include <QString>

/// A serial port of the PC, as the Device Manager lists it.
struct PeripheriqueWindows
{
    QString nom;    ///< as it is shown there, "USB Serial Port (COM3)"
    QString pilote; ///< service of its driver, such as "FTSER2K"
};

/// Looks for port, such as "COM3", among the devices that are there; both texts are "" when it is not found.
PeripheriqueWindows TrouvePeripherique(const QString &port);
