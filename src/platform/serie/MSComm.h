#pragma once

#include "platform/base/PageCode1252.h"
#include "platform/serie/EmissionPort.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/EvenementPort.h"
#include "platform/serie/FileEvenements.h"
#include "platform/serie/FluxXonXoff.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/RetenueLigne.h"
#include "platform/serie/VeilleLigne.h"

#include <QByteArray>
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
/// Threads and waiting. Everything happens on the program's one thread. Bytes move while the event loop runs, inside a
/// yield, or when Output is called. No operation waits for the machine; two give it a bounded time, see Sending.
///
/// Buffers. A character from the machine passes the adapter, the system's queue of about 4,000 characters and the
/// control's receive buffer of InBufferSize. A character to the machine passes the control's queue, which takes
/// whatever Output is given, then the system's and the adapter's. Only the control's own two can be emptied with
/// certainty, so it leaves as little as it can in the others.
///
/// Receiving. The control takes from the system no more than InBufferSize has room for. The rest stays with the system.
/// When its queue is full, the flow control (XOFF, RTS) holds the machine back. So a program that is slow to read loses
/// nothing. Without flow control characters may be lost; event 1008 reports that where the driver counts it. Closing
/// the port throws away unread characters and releases a machine that was held back.
///
/// Sending. Output only queues. The system gets at most the characters that the line carries in the next moment, since
/// they cannot be called back from there (CadenceEmission says how many, AvanceEmission why). So an XOFF or a cancel
/// takes effect within a few characters, and OutBufferCount tells how many the machine has still to get. It falls to 0
/// a few characters before the line falls idle, in time for the next line of text. A sending is over only when EnRoute
/// is 0 too: if the machine holds the line at the very end, these last characters have not gone yet.
///
/// Ends of a sending. VideEmission first waits the line time of the characters just written, up to the length of a
/// chain, unless the line is held. Closing the port waits the line time of the characters that have left the queue.
/// Characters still in the queue are thrown away, since the sending was then cancelled. Both run the event loop
/// meanwhile. The operator's keys and clicks and this control's event are held back until they return.
///
/// Line time. It is computed from Settings. An adapter reports characters as sent when they have crossed the USB, not
/// the line. The characters that the system reports as still unsent count on top, so that a line slower than its
/// Settings gets no more.
///
/// Flow control. The system handles XON and XOFF at once, even while this program is busy. Where the driver does not,
/// the control handles them (FluxXonXoff). Either way the characters 17 and 19 never reach Input. The system or the
/// chip handles RTS and CTS; RTSEnable takes effect only once that handshake is off. RetenueLigne tells whether the
/// line is held. CTS is read every 50 ms and, while it is low, before each handover. So it holds the sending also where
/// a driver accepts the setting and ignores it.
///
/// Events. OnComm comes only from the event loop or a yield, with its code of EvenementPort in CommEvent. A handler may
/// yield; the event that it is handling is not delivered again before it returns (FileEvenements). Line changes are
/// seen within 50 ms. Shorter ones are seen where the driver counts them.
///
/// Errors of characters. A character with an error stays in the text, as it came or as ParityReplace; a break adds
/// none. How many errors the device reports differs: see the class of each system's line.
///
/// Failures. They are raised as Erreur with a number of ErreurPort. After a device was unplugged, operations on the
/// buffers raise ErreurPort::Lecture as soon as the characters already received have been read. The port stays open
/// until it is closed, and closing then does not wait. The port is not reopened by itself, since the device's name may
/// soon belong to another adapter: the next transfer opens it.
class MSComm : public QObject
{
    Q_OBJECT
public:
    /// Opens the line of that number; raises what OuvreLigne() raises.
    using Fabrique = std::function<std::unique_ptr<LigneSerie>(int numPort)>;

    static constexpr int PortMax = 16; ///< highest port number

    explicit MSComm(QObject *parent = nullptr);
    ~MSComm() override;

    /// Sets the function that opens the lines; by default OuvreLigne().
    void setFabrique(Fabrique fabrique) { m_fabrique = std::move(fabrique); }
    /// Folder of links ComN to devices, so that an adapter keeps its number.
    QString DossierPorts() const { return m_dossierPorts; }
    void setDossierPorts(const QString &dossier) { m_dossierPorts = dossier; }

    /// Port number, 1 to PortMax. Raises ErreurPort::Inconnu, or DejaOuvert for another number while the port is open.
    int CommPort() const { return m_commPort; }
    void setCommPort(int numPort);

    /// Opens or closes the port. Opening throws away characters that came before. It raises ErreurPort::Occupe when the
    /// port is already open, what the factory raises, and what the device refuses of Settings. Closing a closed port
    /// does nothing.
    bool PortOpen() const { return m_ligne != nullptr; }
    void setPortOpen(bool ouvert);

    /// Speed, parity, data bits and stop bits, as LitReglagePort() reads them. Raises what LitReglagePort() raises and,
    /// while the port is open, what the device refuses, or Lecture when it was unplugged. The old settings then stay.
    QString Settings() const { return m_settings; }
    void setSettings(const QString &settings);
    /// Characters that the line carries in a second with these Settings.
    double CaracteresParSeconde() const { return m_reglage.CaracteresParSeconde(); }

    /// 0 none, 1 XON/XOFF, 2 RTS/CTS, 3 both. Raises ErreurPort::Reglage.
    int Handshaking() const { return static_cast<int>(m_reglage.flux); }
    void setHandshaking(int flux);

    /// The two lines that the PC drives: RTS and DTR, while the port is open.
    bool RTSEnable() const { return m_rts; }
    void setRTSEnable(bool actif);
    bool DTREnable() const { return m_dtr; }
    void setDTREnable(bool actif);
    /// State of the machine's lines; False while the port is closed.
    bool CTSHolding() const { return Etats() && Etats()->cts; }
    bool DSRHolding() const { return Etats() && Etats()->dsr; }
    bool CDHolding() const { return Etats() && Etats()->cd; }

    /// Size of the receive buffer in characters; 0 and below mean 1024.
    /// Raises ErreurPort::DejaOuvert for another size while the port is open.
    int InBufferSize() const { return m_inBufferSize; }
    void setInBufferSize(int taille);
    /// Block size for the program's sending routines, in characters. The queue itself has no limit. Raises as
    /// InBufferSize.
    int OutBufferSize() const { return m_outBufferSize; }
    void setOutBufferSize(int taille);

    /// Largest number of characters that Input gives; 0 and below: all.
    int InputLen() const { return m_inputLen; }
    void setInputLen(int nombre) { m_inputLen = nombre; }
    /// Whether received NULs are dropped.
    bool NullDiscard() const { return m_nullDiscard; }
    void setNullDiscard(bool jette) { m_nullDiscard = jette; }
    /// Its first character replaces each one that came with a parity error; empty: the character stays as it came.
    QString ParityReplace() const { return m_parityReplace; }
    void setParityReplace(const QString &remplacant);
    /// RThreshold: number of waiting characters from which event 2 is raised. SThreshold: the queue falling below that
    /// many characters raises event 1. 0: no event.
    int RThreshold() const { return m_rThreshold; }
    void setRThreshold(int seuil);
    /// Whether enough characters wait for event 2. A full receive buffer is always enough, since no more can come
    /// before something is read.
    bool SeuilReceptionAtteint() const;
    int SThreshold() const { return m_sThreshold; }
    void setSThreshold(int seuil);

    /// The counts of a transfer. They stay when the port closes. RemetComptes sets them to 0, with the port open or
    /// closed.
    ComptesPort Comptes() const;
    void RemetComptes();

    // The following raise ErreurPort::Ferme on a closed port, and Lecture when the device was unplugged.

    /// Only checks that the port is open and its device present.
    void ExigeVivant() const;

    /// Takes waiting characters out of the receive buffer, at most InputLen.
    QString Input();
    int InBufferCount() const;
    /// The whole receive buffer, without taking anything out of it. Raises nothing; empty on a closed port.
    QString Recus() const { return TexteDe1252(m_recus); }
    /// Empties the receive buffers of the control and the system, and returns the characters removed.
    QString VideReception();
    /// Queues texte for sending, whatever its length.
    void Output(const QString &texte);
    /// Number of characters in the queue.
    int OutBufferCount() const;
    /// Number of characters handed over that the system still holds, as far as it knows. Closing may lose them when the
    /// machine holds the line.
    int EnRoute() const;
    /// Throws away the characters that wait for sending. The first chaine of them (0 and above) get their line time
    /// before that: see "Ends of a sending" above.
    void VideEmission(int chaine);

    /// Holds OnComm back as long as the object lives, so that no handler runs on top of a modal box.
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
        FileEvenements &m_evenements;
    };

    /// Code of the event that is being delivered.
    int CommEvent() const { return m_evenements.Code(); }

Q_SIGNALS:
    void OnComm();

private:
    const std::optional<EtatsLigne> &Etats() const { return m_veille.Etats(); }
    void Ouvre();
    void Ferme();
    void Attend(CadenceEmission::Duree limite, const std::function<bool()> &fini);
    void RegleLigne(LigneSerie &ligne, const ReglagePort &reglage);
    void PoseReglage(const ReglagePort &reglage);
    void ExigeOuvert() const;
    void NoteFermeture(bool retenue) const;
    void Panne(const Erreur &erreur);

    int TailleReception() const;
    int PlaceReception() const;
    void Recolte();
    LectureLigne Releve(int place);
    QByteArray Epure(const LectureLigne &lecture);
    void FreineMachine();
    void Range(const LectureLigne &lecture);
    void ReprendRecolte();
    void VerifieSeuilReception();

    bool Retenue();
    void Surveille();
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
    std::optional<char> m_remplacant; // its first character on the line
    int m_rThreshold = 0;
    int m_sThreshold = 0;

    std::unique_ptr<LigneSerie> m_ligne;
    std::optional<Erreur> m_panne; // set when the device was unplugged
    QTimer m_surveillance;
    VeilleLigne m_veille;
    FluxXonXoff m_xonXoff;
    RetenueLigne m_retenue{m_xonXoff, m_veille};
    EmissionPort m_emission{m_retenue};
    FileEvenements m_evenements;
    QByteArray m_recus;
    qint64 m_ajoutes = 0; // characters given to Output and not thrown away, since RemetComptes
};
