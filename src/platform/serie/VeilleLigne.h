#pragma once

#include "platform/base/Horloge.h"
#include "platform/serie/ComptesPort.h"
#include "platform/serie/LigneSerie.h"

#include <QList>

#include <optional>

/// Watches a line: the states of the machine's lines and the driver's counters. It turns their changes into events, and
/// counts the errors and received characters of a transfer.
class VeilleLigne
{
public:
    /// Takes the present state of ligne as the one to compare with.
    void Ouvre(LigneSerie &ligne);
    /// Reads the line again and returns the events (EvenementPort) since the last time.
    QList<int> Regarde(LigneSerie &ligne);
    /// Forgets the states of the machine's lines. The counts stay.
    void Oublie() { m_etats.reset(); }
    /// The states last read; nothing when the line has none.
    const std::optional<EtatsLigne> &Etats() const { return m_etats; }

    /// Sets the counts to 0.
    void RemetComptes();
    /// The counts, except emis, which MSComm adds.
    ComptesPort Comptes() const;
    /// Notes that nombre characters have come.
    void NoteReception(qsizetype nombre);

private:
    std::optional<EtatsLigne> m_etats;
    CompteursLigne m_compteurs; // as last read
    CompteursLigne m_depart;    // at the last RemetComptes
    qint64 m_recus = 0;
    Horloge::Instant m_premier;
    Horloge::Instant m_dernier;
};
