#pragma once

#include "platform/serie/AvanceEmission.h"

#include <QtGlobal>

#include <chrono>

/// How far the sending may run ahead of the line.
///
/// The line is taken to be busy until a moment that moves on by one character time for each character handed to the
/// system. What lies before that moment is on its way and cannot be called back, so it is kept short; it is never let
/// run out while there is something to send, so that the line never waits for the program. Where it does run out, the
/// lead grows (AvanceEmission). Time in which nothing was handed over earns nothing: after a late event loop or a held
/// line at most one lead goes out at once.
///
/// The clock belongs to the caller.
class CadenceEmission
{
public:
    using Duree = AvanceEmission::Duree;
    using Instant = AvanceEmission::Instant;

    /// vitesse: bits a second, above 0. bitsParCaractere: see ReglagePort.
    void Regle(int vitesse, double bitsParCaractere);

    /// Line time of that many characters.
    Duree Temps(qint64 nombre) const { return nombre * m_caractere; }
    /// The lead in characters.
    int Avance() const { return m_avance.Nombre(); }

    /// How many characters may be handed over now.
    /// systeme: characters that the system still holds; those count even when the line should have carried them.
    int Place(Instant maintenant, int systeme) const;
    /// nombre characters have been handed over.
    void Remet(int nombre, Instant maintenant);
    /// The line does not take what it may have: until the next handover it waits for the machine and not for this PC.
    void Empeche() { m_enSuite = false; }
    /// Line time of what is on its way; grows to no more than that of the lead.
    Duree Reste(Instant maintenant) const;
    /// Time until a quarter of the lead is free again. Handing over that early leaves most of the lead for the delays
    /// of a busy PC.
    Duree AvantRemise(Instant maintenant) const;

    /// The machine holds the line: nothing moves until Reprend. Both may be called twice.
    void Suspend(Instant maintenant);
    void Reprend(Instant maintenant);
    bool Suspendue() const { return m_suspendue; }

private:
    Duree m_caractere = std::chrono::milliseconds(1);
    AvanceEmission m_avance;
    bool m_enSuite = false; // the line has been busy since the last handover, unless this PC was late
    Instant m_libreA;       // the line has carried everything
    Duree m_resteSuspendu{0};
    bool m_suspendue = false;
};
