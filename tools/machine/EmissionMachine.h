#pragma once

#include "machine/Cadence.h"

#include <QByteArray>

#include <optional>

/// One sending of the machine.
struct Envoi
{
    QByteArray Texte;           ///< goes between the machine's two chains, byte for byte
    int PauseLigneMs = 0;       ///< silence behind each line, or each piece; 0: one stream
    QByteArray FinLigne = "\n"; ///< where a line ends, for the pause only
    qint64 CoupeApres = -1;     ///< the machine falls silent after so many characters, in mid-line or not; -1: never
    bool SansFin = false;       ///< the end-of-transfer chain is not sent
    int Morceau = 0;            ///< characters of a piece, which then stands for a line; 0: lines
    bool Salve = false;         ///< a burst of a bench: goes without the chains, and nothing is to come back
};

/// A sending under way: which characters are due when. Knows no clock and no line: times come from outside.
class EmissionMachine
{
public:
    EmissionMachine(const Envoi &envoi, const QByteArray &debut, const QByteArray &fin, const ReglageLigne &ligne,
                    Instant t);

    /// The characters that the line has carried by t and that have not gone yet.
    QByteArray Echu(Instant t) const;
    /// nombre of them have gone.
    void Parti(qint64 nombre);
    /// The PC holds the line (XOFF), or lets it go (XON).
    void Retient(bool retenu, Instant t);
    /// The line takes up again at t, after the system could take no more.
    void Repart(Instant t) { m_cadence.Debute(t); }

    bool Finie() const { return m_position == m_flot.size(); }
    bool Retenue() const { return m_retenu; }
    qint64 Emis() const { return m_position; }
    std::optional<Instant> Echeance() const;

private:
    qsizetype FinTroncon() const;

    QByteArray m_flot;
    QByteArray m_finLigne;
    qsizetype m_morceau;
    std::chrono::milliseconds m_pause;
    Cadence m_cadence;
    qsizetype m_position = 0;
    qsizetype m_finTroncon = 0; // end of the stretch that goes without a pause
    bool m_retenu = false;
};
