#pragma once

#include <QtGlobal>

#include <chrono>

using HorlogeMachine = std::chrono::steady_clock; // never that of the program that the machine serves
using Instant = std::chrono::time_point<HorlogeMachine, std::chrono::nanoseconds>;
using Duree = std::chrono::nanoseconds;

/// The settings that determine the time of a character on the line.
struct ReglageLigne
{
    int Vitesse = 9600; ///< bits per second; 0: the line takes no time
    int DemiBits = 20;  ///< half bits of one character, start, parity and stop bits included (1.5 stop bits are 3)
};

/// The timing of a line: the moment at which each character is complete. All times count from the moment when the line
/// last became busy, so that rounding errors do not add up over a long program.
class Cadence
{
public:
    explicit Cadence(const ReglageLigne &ligne);

    bool SansDelai() const { return m_ligne.Vitesse == 0; }
    /// The line time of nombre characters, rounded up to the nanosecond.
    Duree Temps(qint64 nombre) const;
    /// The line begins a character: at t, or when the last one is complete if that is later.
    void Debute(Instant t);
    /// How many characters are complete at t and not passed on yet. A line that takes no time returns a fixed large
    /// number.
    qint64 Echus(Instant t) const;
    /// nombre characters have been passed on.
    void Passe(qint64 nombre) { m_passes += nombre; }
    /// When the nombre-th character from now will be complete; 0 gives the end of the last one.
    Instant Fin(qint64 nombre) const { return m_origine + Temps(m_passes + nombre); }
    /// The number of characters in a millisecond, at least 1: how many to take at a time. Waking up for each character
    /// of a fast line would cost a processor.
    qint64 Lot() const;

private:
    ReglageLigne m_ligne;
    Instant m_origine;
    qint64 m_passes = 0;
};
