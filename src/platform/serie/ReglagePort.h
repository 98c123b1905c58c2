#pragma once

#include <QString>

#include <chrono>

enum class Parite { Aucune, Impaire, Paire, Marque, Espace };

enum class ControleFlux { Aucun, XonXoff, RtsCts, RtsXonXoff };

/// How long an adapter may keep to itself what the line does: received characters, progress in sending, the end of a
/// refusal. The slowest that is known keeps it for 16 ms (see LignePosix).
constexpr std::chrono::milliseconds JeuAdaptateur{20};

/// How characters travel on the line.
struct ReglagePort
{
    int vitesse = 9600; ///< bits a second, 50 to 4,000,000
    Parite parite = Parite::Aucune;
    int bitsDonnees = 8;   ///< 5 to 8
    int demiBitsArret = 2; ///< length of the stop bit in half bits: 2, 3 or 4
    ControleFlux flux = ControleFlux::Aucun;

    bool AXonXoff() const { return flux == ControleFlux::XonXoff || flux == ControleFlux::RtsXonXoff; }
    bool ARtsCts() const { return flux == ControleFlux::RtsCts || flux == ControleFlux::RtsXonXoff; }
    /// Bits that one character takes on the line: start, data, parity and stop.
    double BitsParCaractere() const;
    /// Characters that the line carries in a second.
    double CaracteresParSeconde() const { return vitesse / BitsParCaractere(); }

    bool operator==(const ReglagePort &) const = default;
};

/// Reads speed, parity, data bits and stop bits, as in "9600,e,7,1". Parity is one of n, o, e, m, s; stop bits are 1,
/// 1.5 or 2. No flow control is set.
/// Raises ErreurPort::Vitesse, BitsDonnees, or Reglage. 1.5 stop bits with more than 5 data bits, and 2 with 5, raise
/// Reglage too, since no serial chip has them.
ReglagePort LitReglagePort(const QString &texte);
