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

/// How often something happened on the line. Only the differences count; what the device does not count stays 0.
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

/// What one reading gave.
struct LectureLigne
{
    QByteArray octets;
    QList<qsizetype> fausses; ///< rising positions in octets of characters that came with a parity error
    bool erreur = false;      ///< the counters have moved: a parity or framing error, or a break
};

/// An open serial line, closed by its destruction. No operation waits. Those that say what they raise may fail; the
/// others do nothing, or give nothing, once the device has gone. Each system has a class of its own for its lines.
class LigneSerie : public QObject
{
    Q_OBJECT
public:
    /// Raises ErreurPort::Vitesse, BitsDonnees or Reglage for what the device cannot do; the line then keeps what it
    /// had.
    virtual void Regle(const ReglagePort &reglage) = 0;
    virtual void PoseRTS(bool actif) = 0;
    virtual void PoseDTR(bool actif) = 0;
    /// Whether the driver, set to flux, stops sending at XOFF and says it itself when it is full. Where it does not,
    /// the line is not to be set to XON/XOFF: the characters would vanish without effect.
    virtual bool ObeitXoff(ControleFlux flux) const = 0;

    /// Whether Lisible and Inscriptible are emitted from now on; neither is to begin with.
    virtual void AnnonceLisible(bool annonce) = 0;
    virtual void AnnonceInscriptible(bool annonce) = 0;
    /// At most tailleMax characters, above 0; none when nothing has come. Raises ErreurPort::Lecture.
    virtual LectureLigne Lit(int tailleMax) = 0;
    /// Hands the first characters over and gives their number; 0 when the line takes none for now.
    /// Raises ErreurPort::Lecture.
    virtual int Ecrit(const char *octets, int nombre) = 0;
    /// Characters handed over that the system still holds, as far as it knows.
    virtual int NonEmis() = 0;
    /// Throws away what has come and was not read, or what the system has not sent.
    virtual void JetteReception() = 0;
    virtual void JetteEmission() = 0;

    /// Nothing where the device has no such lines.
    virtual std::optional<EtatsLigne> Etats() = 0;
    virtual CompteursLigne Compteurs() = 0;

    // Both come from the event loop, again and again for as long as they are true.
Q_SIGNALS:
    /// Characters have come, or the device has gone.
    void Lisible();
    /// Ecrit takes characters, or the device has gone. Some drivers say so without being able to.
    void Inscriptible();
};
