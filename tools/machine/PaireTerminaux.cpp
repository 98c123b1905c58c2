#include "machine/PaireTerminaux.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h> // NOLINT(modernize-deprecated-headers): the pseudo-terminal calls stand in the C header only
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

namespace {
int Verifie(int resultat, const char *appel)
{
    if (resultat < 0)
        throw std::system_error(errno, std::generic_category(), appel);
    return resultat;
}

void MetBrut(int esclave)
{
    termios mode{};
    Verifie(tcgetattr(esclave, &mode), "tcgetattr");
    cfmakeraw(&mode);
    Verifie(tcsetattr(esclave, TCSANOW, &mode), "tcsetattr");
}
} // namespace

PaireTerminaux::PaireTerminaux()
{
    try {
        Ouvre();
    } catch (...) {
        Ferme();
        throw;
    }
}

PaireTerminaux::~PaireTerminaux()
{
    Ferme();
}

void PaireTerminaux::Ouvre()
{
    // Closed in child processes: a child that kept the master would keep a switched-off machine alive.
    m_maitre = Verifie(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK), "posix_openpt");
    Verifie(grantpt(m_maitre), "grantpt");
    Verifie(unlockpt(m_maitre), "unlockpt");
    std::array<char, 128> nom{};
    if (const int erreur = ptsname_r(m_maitre, nom.data(), nom.size()); erreur != 0)
        throw std::system_error(erreur, std::generic_category(), "ptsname_r");
    m_chemin = QString::fromLocal8Bit(nom.data());
    m_esclave = Verifie(open(nom.data(), O_RDWR | O_NOCTTY | O_CLOEXEC), "open");
    MetBrut(m_esclave);
}

bool PaireTerminaux::ALire() const
{
    pollfd attente{m_maitre, POLLIN, 0};
    return poll(&attente, 1, 0) == 1 && (attente.revents & POLLIN) != 0;
}

QByteArray PaireTerminaux::Lit(qint64 maximum)
{
    QByteArray octets(maximum, Qt::Uninitialized);
    octets.truncate(std::max<ssize_t>(0, read(m_maitre, octets.data(), size_t(maximum))));
    return octets;
}

qint64 PaireTerminaux::Ecrit(QByteArrayView octets)
{
    return std::max<ssize_t>(0, write(m_maitre, octets.data(), size_t(octets.size())));
}

void PaireTerminaux::Ferme()
{
    for (int *descripteur : {&m_maitre, &m_esclave}) {
        if (*descripteur >= 0)
            close(*descripteur);
        *descripteur = -1;
    }
}
