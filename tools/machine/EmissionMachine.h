#pragma once

#include "machine/Cadence.h"

#include <QByteArray>

#include <optional>

/// One sending of the machine.
struct Envoi
{
    QByteArray Texte;           ///< sent between the machine's two chains, byte for byte
    int PauseLigneMs = 0;       ///< pause after each line or piece, milliseconds; 0: none
    QByteArray FinLigne = "\n"; ///< end of a line, used for the pause only
    qint64 CoupeApres = -1;     ///< characters after which the machine stops for good; -1: never
    bool SansFin = false;       ///< the end-of-transfer chain is not sent
    int Morceau = 0;            ///< characters of a piece, which is then used in place of a line; 0: lines
    bool Salve = false;         ///< a burst of a bench: sent without the chains, no answer expected
};

/// A sending under way: computes which characters are due when. It uses no clock and no line; the caller passes the
/// times.
class EmissionMachine
{
public:
    EmissionMachine(const Envoi &envoi, const QByteArray &debut, const QByteArray &fin, const ReglageLigne &ligne,
                    Instant t);

    /// The characters that are due at t and have not been taken by Parti() yet.
    QByteArray Echu(Instant t) const;
    /// Tells that nombre of them have been sent.
    void Parti(qint64 nombre);
    /// Tells that the PC holds the line (XOFF) or releases it (XON).
    void Retient(bool retenu, Instant t);
    /// Tells that the system accepts characters again at t, after its buffer was full.
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
    qsizetype m_finTroncon = 0; // end of the stretch sent without a pause
    bool m_retenu = false;
};
