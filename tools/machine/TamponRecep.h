#pragma once

#include "machine/Cadence.h"

#include "platform/serie/CaracteresFlux.h"

#include <optional>
#include <vector>

/// A planned hold of the line.
struct Arret
{
    qint64 Apres = 0; ///< characters received since switching on, after which it begins
    int DureeMs = -1; ///< duration, milliseconds; below 0: until the operator continues
};

struct ReglageTampon
{
    int Profondeur = 1024;     ///< characters that the buffer holds
    int MarqueHaute = 768;     ///< XOFF is sent when this many wait
    int MarqueBasse = 256;     ///< XON is sent when no more than this wait
    int Debit = 0;             ///< characters that the processor takes per second; 0: all at once
    std::vector<Arret> Arrets; ///< ordered by their count of characters
};

/// The receive buffer of the simulated machine, the processor that empties it, and the XON and XOFF that follow from
/// both. It uses no clock: the caller passes all times, in rising order.
class TamponRecep
{
public:
    explicit TamponRecep(const ReglageTampon &reglage);

    /// Takes a character that was complete at t. False when the buffer is full and the character is lost.
    bool Recoit(Instant t);
    /// Lets the processor work up to t. A timed hold that is over by then ends.
    void Avance(Instant t);
    /// Stops the processor until Reprend().
    void Retient();
    void Reprend(Instant t);
    /// XOFF or XON, once each time that it is due; the caller sends it at once.
    std::optional<char> Parole();

    /// Number of characters, at least 1, that can come before XOFF could be due.
    qint64 JusquaMarque() const;
    /// When XOFF or XON will be due without a further character.
    std::optional<Instant> Echeance() const;

    bool Retenu() const { return m_xoff; }
    int Niveau() const { return m_niveau; }
    qint64 Recus() const { return m_recus; } ///< characters received, including the lost ones
    qint64 Perdus() const { return m_perdus; }
    int XoffDits() const { return m_xoffDits; }
    int XonDits() const { return m_xonDits; }
    qint64 SuiteXoff() const { return m_suite; } ///< characters received after the last XOFF, until its XON
    qint64 SuiteXoffMax() const { return m_suiteMax; }

private:
    void SuisArret(Instant t);

    ReglageTampon m_reglage;
    Cadence m_processeur;
    int m_niveau = 0;
    bool m_suspendu = false;
    bool m_xoff = false;
    std::optional<Instant> m_finArret;
    std::size_t m_prochainArret = 0;
    qint64 m_recus = 0;
    qint64 m_perdus = 0;
    int m_xoffDits = 0;
    int m_xonDits = 0;
    qint64 m_suite = 0;
    qint64 m_suiteMax = 0;
};
