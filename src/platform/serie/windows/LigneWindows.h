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
/// Reading. The driver always holds one pending read of one character. When it ends, it wakes the event loop. The
/// characters that the driver reports behind it are then read at once, so this second read never waits. The rest stays
/// with the driver, whose flow control holds the machine back. WaitCommEvent, the system's own event for received
/// characters, would tell nothing more.
///
/// Writing. Each call starts one write. The driver accepts any number of characters and ends the write when it has
/// taken them. So no character is refused, and Inscriptible is never emitted. NonEmis tells how many still wait.
///
/// Errors of characters. ClearCommError reports that an error of a kind happened since the last call, but neither how
/// many nor at which character. Each report counts as one error. The driver itself replaces characters with a parity
/// error (fErrorChar). A break may leave a NUL in what is read; it looks the same as a NUL that was sent.
///
/// Unplugging. The pending read ends with an error, and every later call fails. Some drivers keep the read pending
/// after the device has gone. The control notices that when it asks for the driver's state, every 50 ms.
///
/// Exclusive use. Windows gives a port to one program at a time, and refuses the second one with "access denied".
///
/// Lines of the machine (CTS, DSR, CD, ring). Only their state at the moment of a look is known. A change that is
/// undone before the next look is not seen.
///
/// How common drivers differ from those of Linux, according to their makers' papers and to the trade:
///
///   The PC's own port (Serial) has a FIFO of 16 characters each way; the Device Manager sets how much of it is used.
///   It has no queue for sending: a write ends when its last character is in the FIFO. It obeys XOFF and CTS only
///   between two fillings of the FIFO. It also replaces characters with a framing error, and the last character before
///   an overrun.
///
///   FTDI (FTSER2K) obeys XOFF and CTS in the chip, as on Linux. Received characters come in bursts: the latency timer,
///   16 ms by default, is set in the Device Manager, on the port's own page.
///
///   PL2303 (ser2pl) and CH340 (CH341SER) accept every setting of the flow control. Whether they stop at XOFF depends
///   on the chip and on the driver's version, so the control stops the sending itself. A new driver refuses old and
///   counterfeit PL2303: the Device Manager then shows the port with a warning, and it cannot be used.
///
///   CDC devices (usbser) do not know XOFF.
///
///   A port without a driver in the Device Manager, as under Wine or with some virtual ports, is taken to obey XOFF.
///
/// An adapter without a serial number of its own gets a new COM number in each socket of the PC. The Device Manager can
/// change the number.
///
/// So far this class has been tried under Wine only, whose ports are those of Linux. There a second program can open
/// the port too, a speed that Linux has no name for becomes 38400 without an error, and the machine's lines, RTS and
/// DTR do not exist. 7 data bits on a pseudo-terminal cannot be set a second time with another flow control. Not yet
/// tried on a PC with Windows: parity, framing, break and overrun, 5 to 7 data bits, RTS/CTS, the machine's lines,
/// exclusive use, the lead with each adapter, and the behaviour of each driver when its adapter is pulled out.
class LigneWindows : public LigneSerie
{
public:
    /// Opens port, such as "COM12", and holds it against every other program until the destruction. The line is then
    /// raw, without flow control.
    /// pilote: name of the driver's service, "" if unknown.
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
        int recus;   // characters received that wait in the driver
        int nonEmis; // characters that wait for the line, if the driver counts them
        bool faute;  // a parity or framing error, or a break, has happened
    };
    std::optional<EtatPilote> Interroge();
    EchangeWindows &EcritureLibre();

    QString m_pilote;
    PoigneeWindows m_port;
    EchangeWindows m_premier; // the pending read of one character
    EchangeWindows m_suite;   // reads what came behind it
    std::vector<std::unique_ptr<EchangeWindows>> m_ecritures;
    std::unique_ptr<QWinEventNotifier> m_reveil; // wakes the event loop when m_premier ends
    DemandeLigne m_demande;                      // the last settings given to the driver
    bool m_reglee = false;
    CompteursLigne m_compteurs;
    int m_cause = 0; // error with which the driver refused its state: the device has gone
};
