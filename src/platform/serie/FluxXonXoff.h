#pragma once

#include "platform/serie/LigneSerie.h"

#include <optional>

/// XON/XOFF handled by the control, for a driver that does not obey it. This class removes the characters 17 and 19
/// from what is read, and says when the machine must be told XOFF or XON; the caller sends it. Reading goes on even
/// when the receive buffer is full, so that an XON is always heard. After an XOFF of the machine the characters already
/// handed over still go out. An adapter that collects received characters before it delivers them delays the XOFF by 16
/// ms and more, which is some tens of characters at 9600 baud.
class FluxXonXoff
{
public:
    /// Number of characters that may be read beyond the size of the receive buffer, to hear an XON behind them.
    static constexpr int Reserve = 4096;

    /// Switches the handling on or off. The machine then counts as not holding the line.
    void Pose(bool actif);
    bool Actif() const { return m_actif; }

    /// Obeys the XON and XOFF in lecture and returns it without them. One with a parity error counts as an ordinary
    /// character.
    LectureLigne Entend(const LectureLigne &lecture);
    /// Whether the machine has said XOFF and not yet XON.
    bool Retenue() const { return m_retenue; }

    /// The character that the machine must be told: XOFF from three quarters of the buffer on, XON from a quarter down
    /// or when the handling is off; nothing when the machine has already been told. nombre: characters that wait.
    /// taille: size of the buffer in characters.
    std::optional<char> ADire(qsizetype nombre, int taille) const;
    /// Notes that the machine was told signal.
    void Dit(char signal);

private:
    bool m_actif = false;
    bool m_retenue = false; // the machine has told us XOFF
    bool m_freinee = false; // we have told the machine XOFF
};
