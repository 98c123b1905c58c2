#pragma once

#include "platform/serie/AvanceEmission.h"

#include <QtGlobal>

#include <chrono>

/// How far the sending may run ahead of the line.
///
/// The line counts as busy until a moment that moves on by one character time for each character handed to the system.
/// Those characters are on their way and cannot be called back, so there are never more of them than the lead. They are
/// refilled before they run out, so that the line does not wait for the program. If they do run out, the lead grows
/// (AvanceEmission). After a late event loop or a held line at most one lead goes out at once: time without handovers
/// is not made up for.
///
/// The caller passes the time in, so tests can choose it.
class CadenceEmission
{
public:
    using Duree = AvanceEmission::Duree;
    using Instant = AvanceEmission::Instant;

    /// Sets the pace of the line. vitesse: bits a second, above 0. bitsParCaractere: see ReglagePort.
    void Regle(int vitesse, double bitsParCaractere);

    /// Line time of that many characters.
    Duree Temps(qint64 nombre) const { return nombre * m_caractere; }
    /// The lead in characters.
    int Avance() const { return m_avance.Nombre(); }

    /// How many characters may be handed over now.
    /// systeme: characters that the system still holds; they count even when the line should have carried them by now.
    int Place(Instant maintenant, int systeme) const;
    /// Notes that nombre characters have been handed over.
    void Remet(int nombre, Instant maintenant);
    /// Notes that the line refuses characters. The time until the next handover is then the machine's doing, not the
    /// PC's.
    void Empeche() { m_enSuite = false; }
    /// Line time of the characters on their way, at most that of the lead.
    Duree Reste(Instant maintenant) const;
    /// Time until a quarter of the lead is free again. Refilling that early leaves most of the lead to bridge the
    /// delays of a busy PC.
    Duree AvantRemise(Instant maintenant) const;

    /// Suspend stops the clock while the machine holds the line, Reprend restarts it. A repeated call does nothing.
    void Suspend(Instant maintenant);
    void Reprend(Instant maintenant);
    bool Suspendue() const { return m_suspendue; }

private:
    Duree m_caractere = std::chrono::milliseconds(1);
    AvanceEmission m_avance;
    bool m_enSuite = false; // a gap since the last handover is this PC's fault
    Instant m_libreA;       // when the line will have carried everything
    Duree m_resteSuspendu{0};
    bool m_suspendue = false;
};
