#pragma once

#include "platform/serie/DecodeurMarques.h"
#include "platform/serie/LigneSerie.h"

#include <QSocketNotifier>

#include <memory>

/// How the port is connected: without USB, by a USB adapter that obeys XOFF itself, or by one that does not.
enum class PiloteUsb { Aucun, Obeissant, Sourd };

/// The serial line of a POSIX system with Linux's terminal driver.
///
/// Errors of characters. The driver marks a character that came with an error inside the text (DecodeurMarques) and
/// counts the errors by kind (TIOCGICOUNT). The mark tells the place, the counter the kind; a driver may give both, one
/// or none. Without counters a marked NUL is taken for a break, since that is by far the commoner. Any other mark is
/// then taken for a parity error when there is parity, and for a framing error when there is none.
///
/// Unplugging. Every reading of an unplugged device ends with an end of file or an error, and the system announces it
/// as readable without end.
///
/// Pseudo-terminals. They have no speed, framing or modem lines. The driver silently ignores such settings, which is no
/// failure.
///
/// What common adapters do:
///
///   The PC's own port (8250 family) has 16 characters of FIFO each way and counts every kind of error. The driver
///   deals with XOFF and CTS between two fillings of the FIFO. What is in the FIFO still leaves.
///
///   FTDI (ftdi_sio) has 128 characters towards the line and 256 from it. It deals with XOFF and CTS in the chip,
///   within a character or two. When both are asked for, the chip does RTS/CTS alone. Received characters cross the USB
///   when 62 have gathered or when the latency timer runs out, 16 ms as delivered. So they come in bursts, and a wait
///   for one character is up to 16 ms too long; whoever takes a silence for an end has to wait longer than that. The
///   timer is the file latency_timer of the device under /sys/bus/usb-serial/devices; "setserial DEVICE low_latency"
///   makes it 1 ms. Both are left as the owner of the PC has set them.
///
///   PL2303 (pl2303) has 256 characters each way. Only newer chips deal with XON/XOFF, and the driver does not tell
///   which, so none is relied on. It has no counters. Its error status belongs to a whole USB packet: a parity error
///   marks all the characters that crossed with the bad one.
///
///   CH340 (ch341) sends packets of 32 characters and tells neither parity nor framing errors. It deals with RTS/CTS in
///   the chip with recent kernels only.
///
/// XON/XOFF behind a driver that leaves it to the system (ch341, cdc_acm, pl2303, or any with RTS/CTS besides): these
/// drivers have no way to be stopped. Linux would remove the XOFF from the text and go on sending, and would not send
/// XOFF to the machine. ObeitXoff returns false for these.
///
/// Overrun between chip and driver (1006) comes from a hub, a long cable or a PC that saves power. Among the settings
/// only a lower speed helps.
class LignePosix : public LigneSerie
{
public:
    /// Opens the device at chemin and keeps other programs out until the destruction. The line is then raw and without
    /// flow control, and an XOFF of an earlier use is lifted.
    /// Raises ErreurPort::Inconnu, Occupe, PasUneLigne, Indisponible, or Erreur::AccesRefuse.
    explicit LignePosix(const QString &chemin);
    ~LignePosix() override;

    void Regle(const ReglagePort &reglage) override;
    void PoseRTS(bool actif) override;
    void PoseDTR(bool actif) override;
    bool ObeitXoff(ControleFlux flux) const override;
    void AnnonceLisible(bool annonce) override { m_lecture->setEnabled(annonce); }
    void AnnonceInscriptible(bool annonce) override { m_ecriture->setEnabled(annonce); }
    LectureLigne Lit(int tailleMax) override;
    int Ecrit(const char *octets, int nombre) override;
    int NonEmis() override;
    void JetteReception() override;
    void JetteEmission() override;
    std::optional<EtatsLigne> Etats() override;
    CompteursLigne Compteurs() override;

private:
    void Reserve(const QString &chemin);
    void Libere();
    void PoseSortie(int ligne, bool actif);
    SensMarques Sens();
    bool CompteursPilote(CompteursLigne &compteurs) const;

    std::unique_ptr<QSocketNotifier> Guette(QSocketNotifier::Type evenement, void (LignePosix::*annonce)());

    int m_fd = -1;
    std::unique_ptr<QSocketNotifier> m_lecture;
    std::unique_ptr<QSocketNotifier> m_ecriture;
    bool m_pseudoTerminal = false;
    PiloteUsb m_usb = PiloteUsb::Aucun;
    bool m_avecParite = false;
    DecodeurMarques m_decodeur;
    CompteursLigne m_compteurs;      // as last read from the driver, or counted by marks
    CompteursLigne m_comptesMarques; // the driver's counters at the last mark
};
