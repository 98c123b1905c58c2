#include "platform/serie/posix/TerminalPosix.h"

#include "platform/base/Erreur.h"
#include "platform/base/Reprise.h"
#include "platform/serie/CaracteresFlux.h"
#include "platform/serie/ErreurPort.h"

#include <asm/termbits.h>
#include <cerrno>
#include <cstdlib>
#include <sys/ioctl.h>

namespace {

tcflag_t Taille(int bits)
{
    constexpr tcflag_t tailles[] = {CS5, CS6, CS7, CS8};
    return tailles[bits - 5];
}

tcflag_t DrapeauxParite(Parite parite)
{
    switch (parite) {
    case Parite::Aucune:
        return 0;
    case Parite::Impaire:
        return PARENB | PARODD;
    case Parite::Paire:
        return PARENB;
    case Parite::Marque:
        return PARENB | PARODD | CMSPAR;
    case Parite::Espace:
        return PARENB | CMSPAR;
    }
    return 0;
}

// With 5 data bits the chips send 1.5 stop bits when 2 are set (CSTOPB).
tcflag_t Commande(const ReglagePort &reglage)
{
    return CREAD | CLOCAL | HUPCL | BOTHER | Taille(reglage.bitsDonnees) | DrapeauxParite(reglage.parite) |
           (reglage.demiBitsArret > 2 ? CSTOPB : 0U) | (reglage.ARtsCts() ? CRTSCTS : 0U);
}

// INPCK is set without parity too, since drivers report framing errors only with it.
tcflag_t Entree(const ReglagePort &reglage)
{
    return INPCK | PARMRK | (reglage.AXonXoff() ? IXON | IXOFF : 0U);
}

void RendBrut(termios2 &terminal)
{
    terminal.c_iflag = 0;
    terminal.c_oflag = 0;
    terminal.c_lflag = 0;
    terminal.c_cc[VSTART] = Xon;
    terminal.c_cc[VSTOP] = Xoff;
    terminal.c_cc[VMIN] = 1; // with 0 an empty reading would look like that of an unplugged device
    terminal.c_cc[VTIME] = 0;
}

/// Number of the setting that the driver did not take, 0 when it took all.
int ReglageRefuse(const termios2 &demande, const termios2 &obtenu)
{
    const auto voulue = static_cast<long>(demande.c_ospeed);
    // A chip divides its clock by whole numbers, so the speed may deviate. Beyond 3 % the machine would misread
    // characters.
    if (std::labs(static_cast<long>(obtenu.c_ospeed) - voulue) * 100 > voulue * 3)
        return ErreurPort::Vitesse;
    const tcflag_t ecart = demande.c_cflag ^ obtenu.c_cflag;
    if (ecart & CSIZE)
        return ErreurPort::BitsDonnees;
    if (ecart & (PARENB | PARODD | CMSPAR | CSTOPB | CRTSCTS))
        return ErreurPort::Reglage;
    return 0;
}

} // namespace

int PrepareTerminal(int fd)
{
    termios2 terminal{};
    if (Reprise([&] { return ioctl(fd, TCGETS2, &terminal); }) < 0)
        return errno;
    RendBrut(terminal);
    terminal.c_cflag |= CREAD | CLOCAL;
    // Removing IXON, as RendBrut does, also restarts a terminal stopped by XOFF. A pseudo-terminal stays stopped from
    // one use to the next as long as its other end is open.
    return Reprise([&] { return ioctl(fd, TCSETS2, &terminal); }) < 0 ? errno : 0;
}

void RegleTerminal(int fd, const ReglagePort &reglage, bool verifie)
{
    termios2 ancien{};
    if (Reprise([&] { return ioctl(fd, TCGETS2, &ancien); }) < 0)
        throw Erreur(ErreurPort::Reglage, QString(), errno);

    termios2 demande = ancien;
    RendBrut(demande);
    demande.c_iflag = Entree(reglage);
    demande.c_cflag = Commande(reglage);
    demande.c_ispeed = demande.c_ospeed = static_cast<speed_t>(reglage.vitesse);
    if (Reprise([&] { return ioctl(fd, TCSETS2, &demande); }) < 0) {
        const int cause = errno;
        Reprise([&] { return ioctl(fd, TCSETS2, &ancien); });
        throw Erreur(ErreurPort::Reglage, QString(), cause);
    }
    if (!verifie)
        return;

    termios2 obtenu = demande;
    Reprise([&] { return ioctl(fd, TCGETS2, &obtenu); });
    if (const int numero = ReglageRefuse(demande, obtenu)) {
        Reprise([&] { return ioctl(fd, TCSETS2, &ancien); });
        throw Erreur(numero, QString(), EINVAL);
    }
}

void JetteEntree(int fd)
{
    Reprise([&] { return ioctl(fd, TCFLSH, TCIFLUSH); });
}

void JetteSortie(int fd)
{
    Reprise([&] { return ioctl(fd, TCFLSH, TCOFLUSH); });
}
