#pragma once

#include "platform/serie/LigneSerie.h"

#include <optional>

/// XON/XOFF dealt with by the control, behind a driver that would go on sending. It takes 17 and 19 out of what is read
/// and says what the machine is to be told; nothing is sent here. Reading goes on while the machine is held back, past
/// the size of the receive buffer, so that an XON is always heard. What the lead and the adapter hold still leaves
/// behind an XOFF, and an adapter that gathers what it receives makes it later: 16 ms and more, some tens of characters
/// at 9600 baud.
class FluxXonXoff
{
public:
    /// Characters of a reading that a machine may still send after it was told XOFF.
    static constexpr int Reserve = 4096;

    /// Deals with the flow from now on, or leaves it alone. The machine is taken not to hold the line.
    void Pose(bool actif);
    bool Actif() const { return m_actif; }

    /// The reading without its XON and XOFF, which are obeyed. One that came with a parity error is a character like
    /// any other.
    LectureLigne Entend(const LectureLigne &lecture);
    /// Whether the machine has said XOFF and not yet XON.
    bool Retenue() const { return m_retenue; }

    /// What the machine is to be told now that nombre characters wait in a buffer of taille: XOFF from three quarters
    /// on, XON down to a quarter and when the flow is left alone; nothing when it knows.
    std::optional<char> ADire(qsizetype nombre, int taille) const;
    /// The machine was told.
    void Dit(char signal);

private:
    bool m_actif = false;
    bool m_retenue = false; // by the machine
    bool m_freinee = false; // the machine, by us
};
