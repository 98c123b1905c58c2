#pragma once

#include "platform/serie/FluxXonXoff.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/VeilleLigne.h"

#include <chrono>

/// What holds the line, so that characters given to it now would not reach the machine. The machine holds it by an XOFF
/// that the control obeys itself, or by a low CTS under the handshake. The device holds it when it goes on refusing
/// characters, or when those that it has stand still: then the system or the chip obeys the machine.
///
/// The sending asks before each handover; the control asks before it gives a line time to finish. Instants are the
/// caller's.
class RetenueLigne
{
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = std::chrono::time_point<std::chrono::steady_clock, Duree>;

    /// xonXoff: the XON and XOFF that were heard. veille: the states of the machine's lines when last looked at. Both
    /// must stay.
    RetenueLigne(const FluxXonXoff &xonXoff, const VeilleLigne &veille)
        : m_xonXoff(xonXoff)
        , m_veille(veille)
    {
    }

    /// Looks at ligne from now on, which must stay until the next one is opened or nothing is asked any more.
    void Ouvre(LigneSerie &ligne, const ReglagePort &reglage);
    void Regle(const ReglagePort &reglage);

    /// Whether the machine holds the line. A CTS that was low is looked at again, since it may be high by now.
    bool ParMachine() const;
    /// Whether the device holds the line.
    bool ParAppareil(Instant maintenant);

    /// Characters handed over that the system still holds, as it says now.
    int Systeme(Instant maintenant);
    /// The device has taken pris characters, and then none where refus.
    void NoteRemise(int pris, bool refus, Instant maintenant);
    /// Whether the device has refused the last time.
    bool Refus() const { return m_refus; }
    /// The system was told to throw away what it holds.
    void OublieAppareil();

private:
    bool CtsBas() const;

    const FluxXonXoff &m_xonXoff;
    const VeilleLigne &m_veille;
    LigneSerie *m_ligne = nullptr;
    bool m_rtsCts = false;
    Duree m_patience{0};   // after that, characters that the system holds stand still
    bool m_refus = false;  // the device takes nothing
    Instant m_depuisRefus; // since then
    int m_systeme = 0;     // characters that the system held when last looked at
    Instant m_progres;     // when that number last fell
};
