#pragma once

#include "platform/serie/ComptesPort.h"
#include "platform/serie/LigneSerie.h"

#include <QList>

#include <optional>

/// What comes over a line beside its characters: the states of the machine's lines, and how often something happened.
/// It says which events that makes, and counts the errors and the characters of a transfer.
class VeilleLigne
{
public:
    /// What the line says now is what later looks are compared with.
    void Ouvre(LigneSerie &ligne);
    /// The events (see MSComm) since the line was last looked at.
    QList<int> Regarde(LigneSerie &ligne);
    /// Nothing is known of the machine's lines any more; the counts stay.
    void Oublie() { m_etats.reset(); }
    /// Nothing where the line has no such states.
    const std::optional<EtatsLigne> &Etats() const { return m_etats; }

    /// The counts begin anew.
    void RemetComptes();
    /// The counts, but for emis, which the queue knows.
    ComptesPort Comptes() const;
    /// So many characters have come.
    void NoteReception(qsizetype nombre);

private:
    using Horloge = std::chrono::steady_clock;

    std::optional<EtatsLigne> m_etats;
    CompteursLigne m_compteurs; // when the line was last looked at
    CompteursLigne m_depart;    // when the counts began
    qint64 m_recus = 0;
    Horloge::time_point m_premier;
    Horloge::time_point m_dernier;
};
