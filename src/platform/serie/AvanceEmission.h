#pragma once

#include "platform/base/Horloge.h"

/// How many characters the sending runs ahead of the line, so that the line never waits for a PC that is busy
/// elsewhere.
///
/// A machine that says XOFF still gets these characters and the one under way. Some controls raise an alarm at the
/// eleventh, which ends the transfer; a line that stands still for a moment only costs time. So the lead is as short as
/// the PC allows. Each opening of the port begins with the shortest lead, and on a quiet PC it stays. Up to 19200 baud
/// even the longest lead does not raise that alarm.
///
/// How busy the PC is shows on the line. Time in which the line stood still for lack of characters adds to a debt, at
/// most 5 ms each time. The debt falls by 5 ms a second. A debt beyond 10 ms makes the lead one step longer, so a
/// single delay never does. Every few seconds the lead is made one step shorter on trial. If the PC is still busy, the
/// debt grows again and the step comes back.
///
/// The caller passes the time in, so tests can choose it.
class AvanceEmission
{
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = Horloge::Instant;

    /// Goes back to the short lead. caractere: time that one character takes on the line, above 0.
    void Regle(Duree caractere);
    /// The lead in characters: 6, or 3.5 ms of line time where that is more, up to 9 or 5 ms.
    int Nombre() const;
    /// Notes that characters are handed over at maintenant. aSec: how long the line had nothing to carry before that.
    void Note(Instant maintenant, Duree aSec);

private:
    Duree m_caractere = std::chrono::milliseconds(1);
    int m_pas = 0;     // steps that the lead is longer than the short one
    Instant m_dernier; // when Note was last called
    Duree m_dette{0};
    Duree m_calme{0}; // time since the lead was last made longer or shorter
};
