#pragma once

#include "platform/base/windows/PoigneeWindows.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/windows/EchangeWindows.h"
#include "platform/serie/windows/ReglageWindows.h"

#include <memory>
#include <vector>

class QWinEventNotifier;

/// The serial line of a Windows system.
///
/// Reading. One reading of one character always waits with the driver. Its end wakes the event loop. What the driver
/// says that it holds is read behind it, so that no reading waits. The rest stays with the driver, whose flow control
/// holds the machine back. The system's own event for received characters (WaitCommEvent) would say no more than that.
///
/// Writing. Each handover is a writing that the driver ends when it has taken the characters, and it takes any number
/// of them. So none is refused, and Inscriptible never comes. NonEmis says what stands still.
///
/// Errors of characters. The driver tells that there was an error of a kind since it was last asked, neither how many
/// nor where (ClearCommError). Each telling counts as one. It replaces the characters with a parity error itself
/// (fErrorChar). A break may leave a NUL in what is read, which cannot be told from one that was sent.
///
/// Unplugging. A reading that waits ends with an error, and then every call does. A driver that keeps the reading of a
/// device that has gone is found out when it is asked for its state, as the control does every 50 ms.
///
/// Exclusive use. Windows gives a port to one program at a time, and refuses the second one with "access denied".
///
/// Line changes. States are as good as the look at them. What came and went in between is not seen.
///
/// What common drivers do otherwise than Linux's, as their makers' papers and the trade tell it:
///
///   The PC's own port (Serial) has 16 characters of FIFO each way; how much of it is used is set in the Device
///   Manager. It has no queue for sending: a writing ends when its last character stands in the FIFO. It deals with
///   XOFF and CTS between two fillings of the FIFO. It replaces characters with a framing error too, and the last one
///   that it had room for before some were lost.
///
///   FTDI (FTSER2K) deals with XOFF and CTS in the chip, as behind Linux. Received characters come in bursts: its
///   latency timer, 16 ms as delivered, is set in the Device Manager, on the port's own page.
///
///   PL2303 (ser2pl) and CH340 (CH341SER) say yes to every flow control. Whether they stop at XOFF depends on the chip
///   and the driver's version, so the control does it itself. A new driver refuses old and counterfeit PL2303: the port
///   then stands in the Device Manager with a warning, and cannot be used.
///
///   CDC devices (usbser) know no XOFF.
///
///   A port of no driver that the Device Manager lists is taken to obey XOFF: Wine's, some virtual ones.
///
/// An adapter gets a new COM number at each socket of the PC, unless it bears a serial number of its own. The owner of
/// the PC may give it another one, in the Device Manager.
///
/// Seen so far is Wine, whose ports are Linux's below. There a second opening succeeds, a speed that Linux has no name
/// for becomes 38400 without a word, and the machine's lines, RTS and DTR do not exist. 7 data bits on a
/// pseudo-terminal cannot be set a second time with another flow control. Not seen on a PC with Windows: parity,
/// framing, break and overrun, 5 to 7 data bits, RTS/CTS, the machine's lines, exclusive use, the lead behind each
/// adapter, and how each driver behaves when its adapter is pulled out.
class LigneWindows : public LigneSerie
{
public:
    /// Opens port, such as "COM12", and holds it against every other program until the destruction. The line is then
    /// raw, without flow control.
    /// pilote: the service of its driver, "" where that is not known.
    /// Raises ErreurPort::Inconnu, Occupe, PasUneLigne or Indisponible.
    LigneWindows(const QString &port, const QString &pilote);
    ~LigneWindows() override;

    void Regle(const ReglagePort &reglage) override;
    void PoseRemplacant(std::optional<char> remplacant) override;
    void PoseRTS(bool actif) override;
    void PoseDTR(bool actif) override;
    bool ObeitXoff(ControleFlux flux) const override;
    void AnnonceLisible(bool annonce) override;
    void AnnonceInscriptible(bool /*annonce*/) override {}
    LectureLigne Lit(int tailleMax) override;
    int Ecrit(const char *octets, int nombre) override;
    int NonEmis() override;
    void JetteReception() override;
    void JetteEmission() override;
    std::optional<EtatsLigne> Etats() override;
    CompteursLigne Compteurs() override;

private:
    struct EtatPilote
    {
        int recus;   // characters that it holds for us
        int nonEmis; // and for the line, as far as it counts them
        bool faute;  // there was a parity or framing error, or a break
    };
    std::optional<EtatPilote> Interroge();
    EchangeWindows &EcritureLibre();

    QString m_pilote;
    PoigneeWindows m_port;
    EchangeWindows m_premier; // waits for the next character that comes
    EchangeWindows m_suite;   // fetches what came behind it
    std::vector<std::unique_ptr<EchangeWindows>> m_ecritures;
    std::unique_ptr<QWinEventNotifier> m_reveil; // says that m_premier is over
    DemandeLigne m_demande;                      // what the driver was told
    bool m_reglee = false;
    CompteursLigne m_compteurs;
    int m_cause = 0; // why the driver gave no state: the device has gone
};
