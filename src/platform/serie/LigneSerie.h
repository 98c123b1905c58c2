#pragma once

#include "platform/serie/ReglagePort.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <optional>

/// State of the lines that the machine drives.
struct EtatsLigne
{
    bool cts = false;
    bool dsr = false;
    bool cd = false;
    bool anneau = false;
};

/// Counters of events on the line. Only differences between two readings matter. What the device does not count stays
/// 0.
struct CompteursLigne
{
    unsigned cts = 0;
    unsigned dsr = 0;
    unsigned cd = 0;
    unsigned anneau = 0;
    unsigned pauses = 0;       ///< breaks
    unsigned trame = 0;        ///< framing errors
    unsigned cadence = 0;      ///< characters that the serial chip lost
    unsigned debordements = 0; ///< characters that the system lost
    unsigned parite = 0;
};

/// The result of one reading.
struct LectureLigne
{
    QByteArray octets;
    QList<qsizetype> fausses; ///< positions in octets of the characters with a parity error, in rising order
    bool erreur = false;      ///< a counter has changed: a parity or framing error, or a break
};

/// An open serial line, closed by its destruction. No operation waits. Only those whose comment names a failure raise;
/// the others do nothing and return nothing once the device is unplugged. Each system has its own class.
class LigneSerie : public QObject
{
    Q_OBJECT
public:
    /// Sets the line. Raises ErreurPort::Vitesse, BitsDonnees or Reglage for what the device cannot do; the old
    /// settings then stay.
    virtual void Regle(const ReglagePort &reglage) = 0;
    /// What stands in the place of each character with a parity error, for a driver that puts it there itself; nothing:
    /// they stay as they came. Where the driver says which they are, Lit tells their positions instead.
    virtual void PoseRemplacant(std::optional<char> /*remplacant*/) {}
    virtual void PoseRTS(bool actif) = 0;
    virtual void PoseDTR(bool actif) = 0;
    /// Whether the driver, set to flux, stops sending at XOFF and sends XOFF itself when its buffer is full. If not,
    /// the line must not be set to XON/XOFF: the driver would swallow these characters without effect.
    virtual bool ObeitXoff(ControleFlux flux) const = 0;

    /// Switch the signals Lisible and Inscriptible on or off. At first both are off.
    virtual void AnnonceLisible(bool annonce) = 0;
    virtual void AnnonceInscriptible(bool annonce) = 0;
    /// Reads at most tailleMax characters (above 0); none when nothing has come. Raises ErreurPort::Lecture.
    virtual LectureLigne Lit(int tailleMax) = 0;
    /// Hands over as many of the characters as the line takes now, from the first on, and returns their number,
    /// possibly 0. Raises ErreurPort::Lecture.
    virtual int Ecrit(const char *octets, int nombre) = 0;
    /// Number of characters handed over that the system still holds, as far as it knows.
    virtual int NonEmis() = 0;
    /// Throw away the received characters that were not read, or those that the system has not sent.
    virtual void JetteReception() = 0;
    virtual void JetteEmission() = 0;

    /// State of the machine's lines; nothing when the device has none.
    virtual std::optional<EtatsLigne> Etats() = 0;
    virtual CompteursLigne Compteurs() = 0;

    // Both signals come from the event loop, again and again as long as their condition holds.
Q_SIGNALS:
    /// Characters have come, or the device was unplugged.
    void Lisible();
    /// Ecrit takes characters, or the device was unplugged. Some drivers announce it and then take none.
    void Inscriptible();
};
