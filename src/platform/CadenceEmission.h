#pragma once

#include <QtGlobal>

#include <chrono>

/// How far the sending may run ahead of the line.
///
/// The line is taken to be busy until a moment that moves on by one character time for each character handed to the
/// system. What lies before that moment is on its way and cannot be called back, so it is kept short; it is never let
/// run out while there is something to send, so that the line never waits for the program. Time in which nothing was
/// handed over earns nothing: after a late event loop or a held line at most one lead goes out at once.
///
/// The clock belongs to the caller.
class CadenceEmission
{
public:
    using Duree = std::chrono::nanoseconds;
    using Instant = std::chrono::time_point<std::chrono::steady_clock, Duree>;

    /// vitesse: bits a second, above 0. bitsParCaractere: see ReglagePort.
    void Regle(int vitesse, double bitsParCaractere);

    /// Line time of that many characters.
    Duree Temps(qint64 nombre) const { return nombre * m_caractere; }
    /// The lead in characters: 16, or 15 ms of line time where that is more.
    int Avance() const { return m_avance; }

    /// How many characters may be handed over now.
    /// systeme: characters that the system still holds; those count even when the line should have carried them.
    int Place(Instant maintenant, int systeme) const;
    /// nombre characters have been handed over.
    void Remet(int nombre, Instant maintenant);
    /// Line time of what is on its way; grows to no more than that of the lead.
    Duree Reste(Instant maintenant) const;
    /// Time until a quarter of the lead is free again. Handing over that early leaves three quarters of the lead for
    /// the delays of a busy PC.
    Duree AvantRemise(Instant maintenant) const;

    /// The machine holds the line: nothing moves until Reprend. Both may be called twice.
    void Suspend(Instant maintenant);
    void Reprend(Instant maintenant);
    bool Suspendue() const { return m_suspendue; }

private:
    Duree m_caractere = std::chrono::milliseconds(1);
    int m_avance = 16;
    Instant m_libreA; // the line has carried everything
    Duree m_resteSuspendu{0};
    bool m_suspendue = false;
};
