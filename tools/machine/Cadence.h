#pragma once

#include <QtGlobal>

#include <chrono>

using HorlogeMachine = std::chrono::steady_clock; // never that of the program that the machine serves
using Instant = std::chrono::time_point<HorlogeMachine, std::chrono::nanoseconds>;
using Duree = std::chrono::nanoseconds;

/// What makes the time of a character on the line.
struct ReglageLigne
{
    int Vitesse = 9600; ///< bits per second; 0: the line takes no time
    int DemiBits = 20;  ///< half bits of one character, start, parity and stop bits included (1.5 stop bits are 3)
};

/// The beat of a line: when each character is whole. Every time is counted from the moment at which the line was last
/// taken up, so that nothing adds up over a long program.
class Cadence
{
public:
    explicit Cadence(const ReglageLigne &ligne);

    bool SansDelai() const { return m_ligne.Vitesse == 0; }
    /// The line time of that many characters, rounded up to the nanosecond.
    Duree Temps(qint64 nombre) const;
    /// An idle line takes up a character at t, or when the last one is whole if that is later.
    void Debute(Instant t);
    /// How many characters have become whole at t since the last ones were passed on. A line that takes no time
    /// gives a good mouthful.
    qint64 Echus(Instant t) const;
    /// nombre characters have been passed on.
    void Passe(qint64 nombre) { m_passes += nombre; }
    /// When the nombre-th character from now is whole; 0 gives the end of the last one.
    Instant Fin(qint64 nombre) const { return m_origine + Temps(m_passes + nombre); }
    /// The characters of a millisecond, at least one: looking at a fast line for every character would cost a
    /// processor, and no one sees the difference.
    qint64 Lot() const;

private:
    ReglageLigne m_ligne;
    Instant m_origine;
    qint64 m_passes = 0;
};
