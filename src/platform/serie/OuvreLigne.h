#pragma once

#include <QString>

#include <memory>

class LigneSerie;

// Which line stands behind a port number. Each system has a unit of its own for this.
//
// numPort: from 1 on. dossierPorts: folder of links ComN to devices, so that an adapter keeps its number; "" for none.

/// What a port number stands for.
struct AppareilPort
{
    QString nom;           ///< the device, as the system calls it; "" when there is none
    bool sansPuce = false; ///< the system keeps the name ready, without a port behind it
};

/// Looks for the device of a port number, without opening it.
AppareilPort TrouveAppareil(int numPort, const QString &dossierPorts);

/// Opens the device of a port number. Raises ErreurPort::Inconnu when there is none, and what the opening raises.
std::unique_ptr<LigneSerie> OuvreLigne(int numPort, const QString &dossierPorts);
