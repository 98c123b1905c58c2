#pragma once

#include <chrono>

/// How many characters the sending runs ahead of the line, so that the line never waits for a PC that is busy
/// elsewhere.
///
/// A machine that says XOFF still gets these characters and the one under way. Some controls raise an alarm at the
/// eleventh, and there the transfer ends; a line that stands still for a moment costs time and nothing else. So the
/// lead is short as long as the PC allows it: each opening of the port begins with the short one, which a quiet PC
/// never leaves, and even the longest one keeps below that alarm up to 19200 baud.
///
/// The PC is judged by the line. What the line stood still for want of characters is a debt, and time pays it off, 5 ms
/// for each second. A debt beyond 10 ms makes the lead one step longer; a single delay, however long, does not reach as
/// far. Every few seconds the lead is tried one step shorter: where the PC is still busy, that costs one debt and the
/// step comes back.
///
/// The clock belongs to the caller.
class AvanceEmission
{
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = std::chrono::time_point<std::chrono::steady_clock, Duree>;

    /// The short lead again, for characters that take the line that long; above 0.
    void Regle(Duree caractere);
    /// The lead in characters: 6, or 3.5 ms of line time where that is more, up to 9 or 5 ms.
    int Nombre() const;
    /// Characters are handed over at maintenant, after the line had nothing to carry for as long as aSec.
    void Note(Instant maintenant, Duree aSec);

private:
    Duree m_caractere = std::chrono::milliseconds(1);
    int m_pas = 0;     // steps that the lead is longer than the short one
    Instant m_dernier; // call of Note
    Duree m_dette{0};
    Duree m_calme{0}; // time since the last step, either way
};
