#pragma once

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
/// nothing. Without flow control it may; event 1008 says so where the driver counts it. Closing the port throws
/// away what was not read and lets a machine that was held back go on.
///
/// Sending. Output only queues. From the queue the system gets at most what the line carries in the next moment, since
/// what it holds cannot be called back (CadenceEmission says how much, AvanceEmission why). So an XOFF or a cancel
/// takes effect within a few characters, and OutBufferCount tells what the machine has still to get. It falls to 0 a
/// few characters before the line falls idle, in time for the next line of text. A sending is over only when EnRoute is
/// 0 too: a machine that stops the line over those last ones would never get them.
///
/// Ends of a sending. VideEmission first gives what was just written, up to a chain, its line time, unless the line is
/// held. Closing the port gives its line time to what has left the queue; what still waits there is thrown away, since
/// then the sending was cancelled. Both keep the event loop turning meanwhile. The operator's keys and clicks and this
/// control's event are held back until they return.
///
/// Line time. It is computed from Settings. An adapter that is asked says "sent" when the characters have crossed the
/// USB, not the line. What the system says it still holds counts on top, so that a line that is slower than its
/// Settings is not fed.
///
/// Flow control. XON and XOFF are dealt with by the system, at once, even while this program is busy. Behind a driver
/// that does not, the control deals with them (FluxXonXoff). Either way the characters 17 and 19 never reach Input. RTS
/// and CTS are the system's or the chip's; RTSEnable then waits until the handshake is off again. RetenueLigne tells
/// whether the line is held. CTS is looked at every 50 ms and, while it is low, before each handover, so that it holds
/// the sending also behind a driver that takes the setting and does nothing about it.
///
/// Events. OnComm comes only from the event loop or a yield, with its code of EvenementPort in CommEvent. A handler may
/// yield; the event that it is handling is not delivered again before it returns (FileEvenements). Line changes are
/// seen within 50 ms. Those that came and went in between are seen where the driver counts them.
///
/// Errors of characters. A character with an error stays in the text, as it came or as ParityReplace; a break adds
/// none. How much the device tells of them differs, see the line of each system.
///
/// Failures. They are raised as Erreur with a number of ErreurPort. A device that goes away while the port is open
/// raises ErreurPort::Lecture at the next operation on the buffers, once the characters that had come are read. The
/// port stays open until it is closed, and closing waits for nothing. Nothing is opened again behind the operator's
/// back, since the device's name may belong to another adapter a moment later: the next transfer opens the port anew.
class MSComm : public QObject
{
    Q_OBJECT
public:
    /// Opens the line of that number; raises what OuvreLigne() raises.
    using Fabrique = std::function<std::unique_ptr<LigneSerie>(int numPort)>;

    explicit MSComm(QObject *parent = nullptr);
    ~MSComm() override;

    /// Where the lines come from; by default OuvreLigne().
    void setFabrique(Fabrique fabrique) { m_fabrique = std::move(fabrique); }
    /// Folder of links ComN to devices, so that an adapter keeps its number.
    QString DossierPorts() const { return m_dossierPorts; }
    void setDossierPorts(const QString &dossier) { m_dossierPorts = dossier; }

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
    double CaracteresParSeconde() const { return m_reglage.CaracteresParSeconde(); }

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
    QString VideReception();
    /// Queues texte for sending, whatever its length.
    void Output(const QString &texte);
    /// Characters that have not gone to the line yet.
    int OutBufferCount() const;
    /// Characters handed over that the system still holds, as far as it knows: those that a closing may lose when the
    /// machine holds the line.
    int EnRoute() const;
    /// Throws away what waits for sending, after its line time: see Sending above.
    /// chaine: largest number of waiting characters that still get their line time, from 0 on.
    void VideEmission(int chaine);

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
    int m_rThreshold = 0;
    int m_sThreshold = 0;

    std::unique_ptr<LigneSerie> m_ligne;
    std::optional<Erreur> m_panne; // the device has gone
    QTimer m_surveillance;
    VeilleLigne m_veille;
    FluxXonXoff m_xonXoff;
    RetenueLigne m_retenue{m_xonXoff, m_veille};
    EmissionPort m_emission{m_retenue};
    FileEvenements m_evenements;
    QByteArray m_recus;
    qint64 m_ajoutes = 0; // characters given to Output and not thrown away, since the counts began
};
