#include "platform/serie/posix/LignePosix.h"

#include "platform/base/Erreur.h"
#include "platform/base/Reprise.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/posix/TerminalPosix.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <linux/serial.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

// Major device numbers of pseudo-terminals (the end that a program opens as a terminal).
constexpr unsigned PseudoPremier = 136;
constexpr unsigned PseudoDernier = 143;

int NumeroOuverture(int erreur)
{
    switch (erreur) {
    case ENOENT:
    case ENXIO:
    case ENODEV:
    case EIO: // a device name that the kernel provides without a chip
        return ErreurPort::Inconnu;
    case EBUSY:
    case EWOULDBLOCK:
        return ErreurPort::Occupe;
    case EISDIR:
    case ENOTTY:
    case ENOTDIR:
        return ErreurPort::PasUneLigne;
    case EACCES:
    case EPERM:
        return Erreur::AccesRefuse;
    default:
        return ErreurPort::Indisponible;
    }
}

[[noreturn]] void EchecOuverture(const QString &chemin, int erreur)
{
    throw Erreur(NumeroOuverture(erreur), chemin, erreur);
}

[[noreturn]] void LigneDisparue(int erreur)
{
    throw Erreur(ErreurPort::Lecture, QString(), erreur);
}

dev_t Numero(int fd)
{
    struct stat infos
    {
    };
    return fstat(fd, &infos) == 0 ? infos.st_rdev : 0;
}

bool EstPseudoTerminal(dev_t numero)
{
    return major(numero) >= PseudoPremier && major(numero) <= PseudoDernier;
}

/// How the driver of a device deals with XOFF. Only the drivers listed here make the chip stop at XOFF.
PiloteUsb PiloteDe(dev_t numero)
{
    const QString appareil = QStringLiteral("/sys/dev/char/%1:%2/device").arg(major(numero)).arg(minor(numero));
    if (!QFileInfo(appareil).canonicalFilePath().contains(QLatin1String("/usb")))
        return PiloteUsb::Aucun;
    const QString pilote = QFileInfo(QFileInfo(appareil + QLatin1String("/driver")).canonicalFilePath()).fileName();
    const bool obeissant = pilote == QLatin1String("ftdi_sio") || pilote == QLatin1String("cp210x");
    return obeissant ? PiloteUsb::Obeissant : PiloteUsb::Sourd;
}

} // namespace

LignePosix::LignePosix(const QString &chemin)
{
    const QByteArray nom = QFile::encodeName(chemin);
    m_fd = Reprise([&] { return open(nom.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC); });
    if (m_fd < 0)
        EchecOuverture(chemin, errno);
    try {
        Reserve(chemin);
        if (const int erreur = PrepareTerminal(m_fd)) {
            Libere();
            EchecOuverture(chemin, erreur);
        }
    } catch (...) {
        close(m_fd);
        throw;
    }
    const dev_t numero = Numero(m_fd);
    m_pseudoTerminal = EstPseudoTerminal(numero);
    m_usb = PiloteDe(numero);
    CompteursPilote(m_comptesMarques);
    m_lecture = Guette(QSocketNotifier::Read, &LignePosix::Lisible);
    m_ecriture = Guette(QSocketNotifier::Write, &LignePosix::Inscriptible);
}

LignePosix::~LignePosix()
{
    m_lecture.reset(); // before the descriptor is closed
    m_ecriture.reset();
    Libere();
    close(m_fd);
}

std::unique_ptr<QSocketNotifier> LignePosix::Guette(QSocketNotifier::Type evenement, void (LignePosix::*annonce)())
{
    auto guetteur = std::make_unique<QSocketNotifier>(m_fd, evenement);
    guetteur->setEnabled(false);
    connect(guetteur.get(), &QSocketNotifier::activated, this, annonce);
    return guetteur;
}

/// Locks the device and takes it for exclusive use. The lock is needed too, since exclusive use does not stop a program
/// that runs as root.
void LignePosix::Reserve(const QString &chemin)
{
    if (Reprise([&] { return flock(m_fd, LOCK_EX | LOCK_NB); }) < 0)
        EchecOuverture(chemin, errno);
    if (Reprise([&] { return ioctl(m_fd, TIOCEXCL); }) < 0)
        EchecOuverture(chemin, errno);
}

/// Ends the exclusive use. It would outlast this process where another one keeps the device open, as a simulated
/// machine does.
void LignePosix::Libere()
{
    Reprise([this] { return ioctl(m_fd, TIOCNXCL); });
}

void LignePosix::Regle(const ReglagePort &reglage)
{
    RegleTerminal(m_fd, reglage, !m_pseudoTerminal);
    m_avecParite = reglage.parite != Parite::Aucune;
}

void LignePosix::PoseRTS(bool actif)
{
    PoseSortie(TIOCM_RTS, actif);
}

void LignePosix::PoseDTR(bool actif)
{
    PoseSortie(TIOCM_DTR, actif);
}

/// With both kinds of flow control on, the USB chips do RTS/CTS only.
bool LignePosix::ObeitXoff(ControleFlux flux) const
{
    return m_usb == PiloteUsb::Aucun || (m_usb == PiloteUsb::Obeissant && flux == ControleFlux::XonXoff);
}

void LignePosix::PoseSortie(int ligne, bool actif)
{
    Reprise([&] { return ioctl(m_fd, actif ? TIOCMBIS : TIOCMBIC, &ligne); });
}

LectureLigne LignePosix::Lit(int tailleMax)
{
    QByteArray lus(tailleMax, Qt::Uninitialized);
    const ssize_t nombre = Reprise([&] { return read(m_fd, lus.data(), static_cast<size_t>(tailleMax)); });
    if (nombre < 0 && errno == EAGAIN)
        return {};
    if (nombre <= 0)
        LigneDisparue(nombre < 0 ? errno : EIO);
    lus.truncate(nombre);

    const DecodeurMarques::Resultat resultat = m_decodeur.Decode(lus);
    return QualifieMarques(resultat, resultat.marques.isEmpty() ? SensMarques() : Sens(), m_compteurs);
}

/// Interprets the marks just read by what the driver has counted since the last ones.
SensMarques LignePosix::Sens()
{
    const CompteursLigne avant = m_comptesMarques;
    if (!CompteursPilote(m_comptesMarques))
        return {true, m_avecParite};
    return {m_comptesMarques.pauses != avant.pauses, m_comptesMarques.parite != avant.parite};
}

int LignePosix::Ecrit(const char *octets, int nombre)
{
    const ssize_t pris = Reprise([&] { return write(m_fd, octets, static_cast<size_t>(nombre)); });
    if (pris >= 0)
        return static_cast<int>(pris);
    if (errno == EAGAIN)
        return 0;
    LigneDisparue(errno);
}

int LignePosix::NonEmis()
{
    int nombre = 0;
    return Reprise([&] { return ioctl(m_fd, TIOCOUTQ, &nombre); }) < 0 ? 0 : nombre;
}

void LignePosix::JetteReception()
{
    JetteEntree(m_fd);
    m_decodeur.Oublie();
}

void LignePosix::JetteEmission()
{
    JetteSortie(m_fd);
}

std::optional<EtatsLigne> LignePosix::Etats()
{
    int lignes = 0;
    if (Reprise([&] { return ioctl(m_fd, TIOCMGET, &lignes); }) < 0)
        return {};
    EtatsLigne etats;
    etats.cts = lignes & TIOCM_CTS;
    etats.dsr = lignes & TIOCM_DSR;
    etats.cd = lignes & TIOCM_CD;
    etats.anneau = lignes & TIOCM_RI;
    return etats;
}

/// For an unplugged device the last counters stay: a counter that fell to 0 would look like an event.
CompteursLigne LignePosix::Compteurs()
{
    CompteursPilote(m_compteurs);
    return m_compteurs;
}

/// Reads the driver's counters. Returns false and leaves compteurs as it is when the driver has none.
bool LignePosix::CompteursPilote(CompteursLigne &compteurs) const
{
    serial_icounter_struct pilote{};
    if (Reprise([&] { return ioctl(m_fd, TIOCGICOUNT, &pilote); }) < 0)
        return false;
    const auto compte = [](int nombre) { return static_cast<unsigned>(nombre); };
    compteurs.cts = compte(pilote.cts);
    compteurs.dsr = compte(pilote.dsr);
    compteurs.cd = compte(pilote.dcd);
    compteurs.anneau = compte(pilote.rng);
    compteurs.pauses = compte(pilote.brk);
    compteurs.trame = compte(pilote.frame);
    compteurs.cadence = compte(pilote.overrun);
    compteurs.debordements = compte(pilote.buf_overrun);
    compteurs.parite = compte(pilote.parity);
    return true;
}
