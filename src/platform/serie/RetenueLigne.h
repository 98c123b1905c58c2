#pragma once

#include "platform/base/Horloge.h"
#include "platform/serie/FluxXonXoff.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/VeilleLigne.h"

/// Tells whether the line is held, so that characters handed over now would not reach the machine. The machine holds it
/// by an XOFF that the control handles itself, or by a low CTS under RTS/CTS. The device holds it when it keeps
/// refusing characters or when its own characters stand still: the system or the chip then obeys the machine.
///
/// EmissionPort asks before each handover, MSComm before it waits for a line time. The caller passes the time in.
class RetenueLigne
{
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = Horloge::Instant;

    /// xonXoff: the XON and XOFF received. veille: the states of the machine's lines. Both must live as long as this
    /// object.
    RetenueLigne(const FluxXonXoff &xonXoff, const VeilleLigne &veille)
        : m_xonXoff(xonXoff)
        , m_veille(veille)
    {
    }

    /// Watches ligne from now on. It must stay alive until the next call of Ouvre or until no more questions are asked.
    void Ouvre(LigneSerie &ligne, const ReglagePort &reglage);
    void Regle(const ReglagePort &reglage);

    /// Whether the machine holds the line. A CTS that was low is read again, since it may be high by now.
    bool ParMachine() const;
    /// Whether the device holds the line.
    bool ParAppareil(Instant maintenant);

    /// Number of characters handed over that the system still holds.
    int Systeme(Instant maintenant);
    /// Notes that the device has taken pris characters. refus: it then refused more.
    void NoteRemise(int pris, bool refus, Instant maintenant);
    /// Whether the device refused characters at the last handover.
    bool Refus() const { return m_refus; }
    /// Notes that the system has thrown away the characters that it held.
    void OublieAppareil();

private:
    bool CtsBas() const;

    const FluxXonXoff &m_xonXoff;
    const VeilleLigne &m_veille;
    LigneSerie *m_ligne = nullptr;
    bool m_rtsCts = false;
    Duree m_patience{0};   // after that time without progress the system's characters stand still
    bool m_refus = false;  // the device refused characters at the last handover
    Instant m_depuisRefus; // when it began to refuse
    int m_systeme = 0;     // characters that the system held when last asked
    Instant m_progres;     // when that number last fell
};
