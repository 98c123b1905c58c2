#include "platform/serie/AppelsSysteme.h"

#include <asm/termbits.h>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

Systeme systeme;

namespace {

int ligne = -1; // what was last opened as Com2

bool Echoue(int erreur)
{
    errno = erreur;
    return true;
}

/// True when the call fails, with its errno set.
bool Trouble(Appel appel)
{
    if (systeme.rate == appel && appel != Appel::Aucun)
        return Echoue(systeme.erreur);
    return systeme.tempete && ++systeme.coups % 2 == 0 && Echoue(EINTR);
}

/// The same for a call that moves characters; taille: how many it may move.
bool TroubleTransport(Appel appel, size_t &taille)
{
    if (Trouble(appel))
        return true;
    if (systeme.tempete)
        taille = 1;
    return systeme.tempete && systeme.coups % 5 == 0 && Echoue(EAGAIN);
}

/// True when the chip has answered.
bool PuceRepond(unsigned long demande, void *donnees)
{
    if (systeme.puce == nullptr || (demande != TIOCMGET && demande != TIOCGICOUNT))
        return false;
    if (demande == TIOCMGET)
        *static_cast<int *>(donnees) = systeme.puce->lignes;
    else
        *static_cast<serial_icounter_struct *>(donnees) = systeme.puce->compteurs;
    return true;
}

Appel AppelDe(unsigned long demande)
{
    switch (demande) {
    case TCGETS2:
        return Appel::Interroge;
    case TCSETS2:
        return Appel::Regle;
    default:
        return Appel::Aucun;
    }
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" {
int __real_open(const char *chemin, int drapeaux, ...);
int __real_ioctl(int fd, unsigned long demande, ...);
ssize_t __real_read(int fd, void *octets, size_t taille);
ssize_t __real_write(int fd, const void *octets, size_t taille);

int __wrap_open(const char *chemin, int drapeaux, ...)
{
    const size_t taille = std::strlen(chemin);
    if (taille < 4 || std::strcmp(chemin + taille - 4, "Com2") != 0)
        return __real_open(chemin, drapeaux);
    if (Trouble(Appel::Ouvre))
        return -1;
    return ligne = __real_open(chemin, drapeaux);
}

int __wrap_ioctl(int fd, unsigned long demande, ...)
{
    va_list suite;
    va_start(suite, demande);
    void *const donnees = va_arg(suite, void *);
    va_end(suite);
    if (fd == ligne && Trouble(AppelDe(demande)))
        return -1;
    if (fd == ligne && PuceRepond(demande, donnees))
        return 0;
    const int resultat = __real_ioctl(fd, demande, donnees);
    if (fd == ligne && systeme.puce != nullptr && systeme.puce->vitesse != 0 && demande == TCGETS2)
        static_cast<termios2 *>(donnees)->c_ospeed = systeme.puce->vitesse;
    return resultat;
}

ssize_t __wrap_read(int fd, void *octets, size_t taille)
{
    return fd == ligne && TroubleTransport(Appel::Lit, taille) ? -1 : __real_read(fd, octets, taille);
}

ssize_t __wrap_write(int fd, const void *octets, size_t taille)
{
    return fd == ligne && TroubleTransport(Appel::Ecrit, taille) ? -1 : __real_write(fd, octets, taille);
}
}
// NOLINTEND(bugprone-reserved-identifier)
