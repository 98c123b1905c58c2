#pragma once

#include "platform/serie/EmissionPort.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/EvenementPort.h"
#include "platform/serie/EvenementsPort.h"
#include "platform/serie/FluxXonXoff.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/VeilleLigne.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

/// The serial control: one port of the PC, its properties, its two buffers and its event.
///
/// Principles of operation
///
/// Text. One character of text is one byte of code page 1252 on the line, in both directions; all 256 values travel.
///
/// Threads and waiting. Everything happens on the program's one thread. Bytes move while the event loop runs, or inside
/// a yield, or when Output is called. No operation waits for the machine; two give it a bounded time, see Sending.
///
/// Buffers. On its way from the machine a character passes the adapter, the system's queue of about 4,000 characters
/// and the control's receive buffer of InBufferSize. On its way to the machine it passes the control's queue, which
/// takes whatever Output is given, then the system's and the adapter's. Only the control's own two can be emptied with
/// certainty, so it lets as little as it can stand in the others.
///
/// Receiving. The control takes from the system no more than InBufferSize has room for. The rest stays with the system,
/// whose queue fills, whereupon the system's flow control (XOFF, RTS) holds the machine back. So a program that is slow
/// to read loses nothing, unless there is no flow control, and then event 1008 says so where the driver counts it.
/// Closing the port throws away what was not read, whereupon a machine that was held back may go on.
///
/// Sending. Output only queues. From the queue the system gets at most what the line carries in the next moment
/// (CadenceEmission), since what it holds cannot be called back: USB adapters and pseudo-terminals buffer hundreds of
/// characters. So an XOFF or a cancel takes effect within a few characters, OutBufferCount tells what the machine has
/// still to get, and it falls to 0 a few characters before the line falls idle, in time for the next line of text. A
/// sending is over only when EnRoute is 0 too: a machine that stops the line over those last ones would never get them.
/// OutBufferCount = 0 (ViderEmission) first gives what was just written, up to 100 characters, its line time, unless
/// the machine holds the line. Closing the port gives its line time to what has left the queue; what still waits there
/// is thrown away, since then the sending was cancelled. Both keep the event loop turning meanwhile, with the
/// operator's keys and clicks and this control's event held back until they return.
///
/// Pacing. The lead follows the PC (AvanceEmission). It begins short at each opening, 6 characters or 3.5 ms of line
/// time, whichever is more, and on a quiet PC it stays there: at most 8 characters come behind an XOFF up to 19200 baud
/// and at most 60 at 115200. Where the line keeps running dry because the PC is busy elsewhere it grows, to 9
/// characters or 5 ms at most, and shrinks again after some seconds. No more, since some controls raise an alarm at the
/// eleventh character: rather the line stands still now and then. The pump is woken to the microsecond
/// (MinuteurPrecis), for with whole milliseconds a fast line would need twice the lead. What a busy system takes to
/// heed an XOFF comes on top and is out of this program's hands. The clock is computed from Settings and not asked of
/// the device, since an adapter says "sent" when the characters have crossed the USB and not the line. What the system
/// says it still holds counts on top, so that a line slower than its Settings, or one that the machine holds, is not
/// fed.
///
/// Flow control. XON and XOFF are dealt with by the system, at once, even while this program is busy, or by the control
/// behind an adapter whose driver does not, see Adapters; with them on, the characters 17 and 19 never reach Input. The
/// system does the same for RTS and CTS where the chip does not; RTSEnable then waits until the handshake is off again.
/// A line counts as held when the system goes on refusing characters, when CTS is low under that handshake, or when the
/// system's own backlog stands still for clearly longer than its line time. CTS is looked at before each handover as
/// well as every 50 ms, so that it holds the sending also behind a driver that takes the setting and does nothing about
/// it.
///
/// Events. OnComm comes only from the event loop or a yield, with its code in CommEvent, see EvenementPort. A handler
/// may yield; the event that it is handling is not delivered again before it returns, see EvenementsPort. Line changes
/// are seen within 50 ms, also those that came and went in between where the driver counts them.
///
/// Errors of characters. The system marks a character that came with an error inside what is read (DecodeurMarques) and
/// counts it apart, by kind (TIOCGICOUNT). The mark says where, the counter what; a driver may give both, one, or none,
/// see Adapters. Without counters a marked NUL is taken for a break, any other mark for a parity error when there is
/// parity and for a framing error when there is none. A character with an error stays in the text, as it came or as
/// ParityReplace; a break adds none.
///
/// Failures. They are raised as Erreur with a number of ErreurPort. A device that goes away while the port is open
/// raises ErreurPort::Lecture at the next operation on the buffers, once the characters that had come are read; the
/// port stays open until it is closed.
///
/// Unplugging. The system ends every reading of a device that is gone with an end of file or an error, and says without
/// end that it is readable. The control stops listening at the first of these and keeps the error for whoever asks next
/// (ExigeVivant); closing waits for nothing. The device's name may belong to another adapter a moment later, so nothing
/// is opened again behind the operator's back: the next transfer opens the port anew, by the link that stands for it.
///
/// Adapters. What the common ones do on Linux, and what comes of it here:
///
///   The PC's own port (8250 family) has 16 characters of FIFO each way and counts every kind of error. The driver
///   deals with XOFF and CTS between two fillings of the FIFO. What is in it still leaves, and that is the lead, as it
///   is never given more.
///
///   FTDI (ftdi_sio) has 128 characters towards the line and 256 from it. It deals with XOFF and CTS in the chip,
///   within a character or two; when both are asked for, the chip does RTS/CTS alone. Received characters cross the USB
///   when 62 have gathered or when the latency timer runs out, 16 ms as delivered: they come in bursts, and a wait for
///   one character is up to 16 ms too long. The control looks at no gap between two characters, so that costs time in
///   an exchange of single characters and nothing else; a program that takes a silence for an end has to wait longer
///   than that. Where it does cost, the timer is the file latency_timer of the device under
///   /sys/bus/usb-serial/devices, or 1 ms with "setserial DEVICE low_latency"; the control leaves both as the owner of
///   the PC has set them.
///
///   PL2303 (pl2303) has 256 characters each way. Only newer chips deal with XON/XOFF, and the driver does not tell
///   which, so none is relied on. It has no counters, and its error status belongs to a whole USB packet: a parity
///   error marks all the characters that crossed with the bad one. ParityReplace then replaces more than one, and a
///   text with such an event has to be received again.
///
///   CH340 (ch341) sends packets of 32 characters, tells neither parity nor framing errors by mark or counter, and
///   deals with RTS/CTS in the chip with recent kernels only. A machine that is checked by parity wants another
///   adapter.
///
///   XON/XOFF behind a driver that leaves it to the system (ch341, cdc_acm, pl2303, or any with RTS/CTS besides): Linux
///   would take the XOFF out of what is read and go on sending, because these drivers have no way to be stopped, nor
///   would it say XOFF to the machine. There the line is set without, and the control deals with it (FluxXonXoff): it
///   takes 17 and 19 out of what it reads, stops its pump, and says XOFF itself when its receive buffer is three
///   quarters full. Reading goes on meanwhile, up to 4,096 characters past InBufferSize, so that an XON is always
///   heard. What the lead and the adapter hold still leaves behind an XOFF, and what the adapter keeps back of
///   what it received makes it later: 16 ms and more, some tens of characters at 9600 baud.
///
///   Overrun between chip and driver (1006) is what a hub, a long cable or a sleeping PC costs; there is no cure in
///   software but a lower speed.
///
/// Pseudo-terminals. They have no speed, framing or modem lines: settings without a meaning are no failure, the lines
/// read False, and the sending is paced all the same.
class MSComm : public QObject
{
    Q_OBJECT
public:
    /// Opens the port of that number; raises what LignePosix raises.
    using Fabrique = std::function<std::unique_ptr<LigneSerie>(int numPort)>;

    explicit MSComm(QObject *parent = nullptr);
    ~MSComm() override;

    /// Where the lines come from; by default LignePosix on CheminPort().
    void setFabrique(Fabrique fabrique) { m_fabrique = std::move(fabrique); }
    /// Folder of links ComN to devices, so that an adapter keeps its number.
    void setDossierPorts(const QString &dossier) { m_dossierPorts = dossier; }
    /// The device that a port number stands for: the first that exists of ComN in the folder of links, /dev/comN,
    /// /dev/ttyS(N-1). Empty when none does.
    QString CheminPort(int numPort) const;

    /// Port number, 1 to 16. Raises ErreurPort::Inconnu, or DejaOuvert for another number while the port is open.
    int CommPort() const { return m_commPort; }
    void setCommPort(int numPort);

    /// Opens or closes the port. Opening raises ErreurPort::Occupe when it is open already, what the factory raises,
    /// and what the device refuses of Settings; it throws away what came before. Closing a closed port does nothing.
    bool PortOpen() const { return m_ligne != nullptr; }
    void setPortOpen(bool ouvert);

    /// Speed, parity, data bits and stop bits, as LitReglagePort() reads them. A refused text changes nothing; while
    /// the port is open it raises also what the device refuses, or Lecture once it has gone.
    QString Settings() const { return m_settings; }
    void setSettings(const QString &settings);
    /// What the line carries with these Settings.
    double CaracteresParSeconde() const { return m_reglage.vitesse / m_reglage.BitsParCaractere(); }

    /// 0 none, 1 XON/XOFF, 2 RTS/CTS, 3 both. Raises ErreurPort::Reglage.
    int Handshaking() const { return static_cast<int>(m_reglage.flux); }
    void setHandshaking(int flux);

    /// State of the two lines that the PC drives, while the port is open.
    bool RTSEnable() const { return m_rts; }
    void setRTSEnable(bool actif);
    bool DTREnable() const { return m_dtr; }
    void setDTREnable(bool actif);
    /// State of the machine's lines; False while the port is closed.
    bool CTSHolding() const { return Etats() && Etats()->cts; }
    bool DSRHolding() const { return Etats() && Etats()->dsr; }
    bool CDHolding() const { return Etats() && Etats()->cd; }

    /// Size of the receive buffer in characters; the usual 1024 stands in for 0 and below.
    /// Raises ErreurPort::DejaOuvert for another size while the port is open.
    int InBufferSize() const { return m_inBufferSize; }
    void setInBufferSize(int taille);
    /// What the program takes for the size of a block. The queue itself takes what Output is given.
    int OutBufferSize() const { return m_outBufferSize; }
    void setOutBufferSize(int taille);

    /// Largest number of characters that Input gives; 0 and below: all.
    int InputLen() const { return m_inputLen; }
    void setInputLen(int nombre) { m_inputLen = nombre; }
    /// Whether received NULs are dropped.
    bool NullDiscard() const { return m_nullDiscard; }
    void setNullDiscard(bool jette) { m_nullDiscard = jette; }
    /// Its first character takes the place of each one that came with a parity error; empty: it stays as it came.
    QString ParityReplace() const { return m_parityReplace; }
    void setParityReplace(const QString &remplacant) { m_parityReplace = remplacant; }
    /// Received characters that raise event 2, and level of the queue below which event 1 comes; 0: no event.
    int RThreshold() const { return m_rThreshold; }
    void setRThreshold(int seuil);
    /// Whether as many characters wait as raise event 2. A full receive buffer is always enough: no more can come
    /// before something is read.
    bool SeuilReceptionAtteint() const;
    int SThreshold() const { return m_sThreshold; }
    void setSThreshold(int seuil);

    /// The counts of a transfer; they stay when the port closes. RemetComptes begins them anew, with the port open or
    /// closed.
    ComptesPort Comptes() const;
    void RemetComptes();

    // The following raise ErreurPort::Ferme on a closed port, and Lecture once the device has gone.

    /// Does nothing else.
    void ExigeVivant() const;

    /// Takes the characters that wait out of the receive buffer, at most InputLen.
    QString Input();
    int InBufferCount() const;
    /// Throws away what the control and the system have received, and gives it back to whoever wants to know.
    QString ViderReception();
    /// Queues texte for sending, whatever its length.
    void Output(const QString &texte);
    /// Characters that have not gone to the line yet.
    int OutBufferCount() const;
    /// Characters handed over that the system still holds, as far as it knows: those that a closing may lose when the
    /// machine holds the line.
    int EnRoute() const;
    /// Throws away what waits for sending, after its line time: see Sending above.
    void ViderEmission();

    /// Holds OnComm back as long as it lives, for a modal box that the handler must not run on top of.
    class SansEvenements
    {
    public:
        explicit SansEvenements(MSComm &controle)
            : m_evenements(controle.m_evenements)
        {
            m_evenements.Retient();
        }
        ~SansEvenements() { m_evenements.Relache(); }
        Q_DISABLE_COPY_MOVE(SansEvenements)

    private:
        EvenementsPort &m_evenements;
    };

    /// Code of the event that is being delivered.
    int CommEvent() const { return m_evenements.Code(); }

Q_SIGNALS:
    void OnComm();

private:
    const std::optional<EtatsLigne> &Etats() const { return m_veille.Etats(); }
    std::unique_ptr<LigneSerie> OuvreLigne() const;
    void Ouvre();
    void Ferme();
    void Attend(CadenceEmission::Duree limite, const std::function<bool()> &fini);
    void RegleLigne(LigneSerie &ligne, const ReglagePort &reglage);
    void PoseReglage(const ReglagePort &reglage);
    void ExigeOuvert() const;
    void Panne(const Erreur &erreur);

    int TailleReception() const;
    int PlaceReception() const;
    void Recolte();
    LectureLigne Releve(int place);
    QByteArray Epure(const LectureLigne &lecture);
    void FreineMachine();
    void Range(const LectureLigne &lecture);
    void ReprendRecolte();
    void ControleSeuilReception();

    void Surveille();
    void SuitMachine();
    void Delivre();

    Fabrique m_fabrique;
    QString m_dossierPorts;
    int m_commPort = 1;
    QString m_settings = QStringLiteral("9600,n,8,1");
    ReglagePort m_reglage;
    bool m_rts = false;
    bool m_dtr = false;
    int m_inBufferSize = 1024;
    int m_outBufferSize = 512;
    int m_inputLen = 0;
    bool m_nullDiscard = false;
    QString m_parityReplace;
    int m_rThreshold = 0;
    int m_sThreshold = 0;

    std::unique_ptr<LigneSerie> m_ligne;
    std::optional<Erreur> m_panne; // the device has gone
    std::unique_ptr<QSocketNotifier> m_lecture;
    VeilleLigne m_veille;
    QTimer m_surveillance;
    EmissionPort m_emission;
    FluxXonXoff m_xonXoff;
    EvenementsPort m_evenements;
    QByteArray m_recus;
    qint64 m_ajoutes = 0; // characters given to Output and not thrown away, since the counts began
};
