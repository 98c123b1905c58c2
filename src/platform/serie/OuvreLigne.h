#pragma once

#include <QString>

#include <memory>

class LigneSerie;

// Finds and opens the device of a port number. Each system has its own unit for this.
//
// numPort: from 1 on. dossierPorts: folder of links ComN to devices, so that an adapter keeps its number; "" for none.

/// The device of a port number.
struct AppareilPort
{
    QString nom;           ///< the device, as the system calls it; "" when there is none
    bool sansPuce = false; ///< the name exists, but no port belongs to it
};

/// Looks for the device of a port number, without opening it.
AppareilPort TrouveAppareil(int numPort, const QString &dossierPorts);

/// Opens the device of a port number. Raises ErreurPort::Inconnu when there is none, and what the opening raises.
std::unique_ptr<LigneSerie> OuvreLigne(int numPort, const QString &dossierPorts);
