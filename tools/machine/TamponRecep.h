#pragma once

#include "machine/Cadence.h"

#include "platform/serie/CaracteresFlux.h"

#include <optional>
#include <vector>

/// A hold written down beforehand.
struct Arret
{
    qint64 Apres = 0; ///< once this many characters have come since the machine was switched on
    int DureeMs = -1; ///< for this long; below 0: until the operator goes on
};

struct ReglageTampon
{
    int Profondeur = 1024;     ///< characters that the buffer holds
    int MarqueHaute = 768;     ///< XOFF is said when so many wait
    int MarqueBasse = 256;     ///< XON is said when no more than this wait
    int Debit = 0;             ///< characters that the processor takes out per second; 0: all at once
    std::vector<Arret> Arrets; ///< by rising count of characters
};

/// The receive buffer of the control, the processor that empties it, and what both make the control say to the PC.
/// Knows no clock: all times come from outside, in rising order.
class TamponRecep
{
public:
    explicit TamponRecep(const ReglageTampon &reglage);

    /// A character has become whole at t. False: the buffer is full and the character is lost.
    bool Recoit(Instant t);
    /// The processor works up to t; a timed hold that is over by then ends.
    void Avance(Instant t);
    /// The processor stops taking characters, until Reprend().
    void Retient();
    void Reprend(Instant t);
    /// XOFF or XON, each time that it is due; the caller puts it on the line at once.
    std::optional<char> Parole();

    /// Characters that can come before the buffer may want to say something, at least 1.
    qint64 JusquaMarque() const;
    /// When there will be something to say without a further character.
    std::optional<Instant> Echeance() const;

    bool Retenu() const { return m_xoff; }
    int Niveau() const { return m_niveau; }
    qint64 Recus() const { return m_recus; } ///< characters come, the lost ones included
    qint64 Perdus() const { return m_perdus; }
    int XoffDits() const { return m_xoffDits; }
    int XonDits() const { return m_xonDits; }
    qint64 SuiteXoff() const { return m_suite; } ///< characters come since the last XOFF, up to its XON
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
