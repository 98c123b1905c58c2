#include "AppelsSysteme.h"

#include <asm/termbits.h>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

int ligne = -1; // the device of Com2
bool tempete = false;
int coups = 0;
Appel rate = Appel::Aucun;
int erreurRatee = 0;
int reglages = 0; // since the opening
std::chrono::nanoseconds avance{0};
const PuceFeinte *puce = nullptr;

bool Echoue(int erreur)
{
    errno = erreur;
    return true;
}

/// True when the call fails, with its errno set.
bool Trouble(Appel appel)
{
    if (rate == appel && appel != Appel::Aucun)
        return Echoue(erreurRatee);
    return tempete && ++coups % 2 == 0 && Echoue(EINTR);
}

/// The same for a call that moves characters; taille: how many it may move.
bool TroubleTransport(Appel appel, size_t &taille)
{
    if (Trouble(appel))
        return true;
    if (tempete)
        taille = 1;
    return tempete && coups % 5 == 0 && Echoue(EAGAIN);
}

/// True when the chip has answered.
bool PuceRepond(unsigned long demande, void *donnees)
{
    if (puce == nullptr || (demande != TIOCMGET && demande != TIOCGICOUNT))
        return false;
    if (demande == TIOCMGET)
        *static_cast<int *>(donnees) = puce->lignes;
    else
        *static_cast<serial_icounter_struct *>(donnees) = puce->compteurs;
    return true;
}

Appel AppelDe(unsigned long demande)
{
    switch (demande) {
    case TIOCEXCL:
        return Appel::Reserve;
    case TCGETS2:
        return Appel::Interroge;
    case TCSETS2:
        return ++reglages == 1 ? Appel::Regle : Appel::Regle2;
    default:
        return Appel::Aucun;
    }
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" {
int __real_open(const char *chemin, int drapeaux, ...);
int __real_close(int fd);
int __real_flock(int fd, int operation);
int __real_ioctl(int fd, unsigned long demande, ...);
ssize_t __real_read(int fd, void *octets, size_t taille);
ssize_t __real_write(int fd, const void *octets, size_t taille);
std::chrono::steady_clock::time_point __real__ZNSt6chrono3_V212steady_clock3nowEv() noexcept;

int __wrap_open(const char *chemin, int drapeaux, ...)
{
    const size_t taille = std::strlen(chemin);
    if (taille < 4 || std::strcmp(chemin + taille - 4, "Com2") != 0)
        return __real_open(chemin, drapeaux);
    if (Trouble(Appel::Ouvre))
        return -1;
    reglages = 0;
    return ligne = __real_open(chemin, drapeaux);
}

int __wrap_close(int fd)
{
    if (fd == ligne)
        ligne = -1;
    return __real_close(fd);
}

int __wrap_flock(int fd, int operation)
{
    return fd == ligne && Trouble(Appel::Verrouille) ? -1 : __real_flock(fd, operation);
}

int __wrap_ioctl(int fd, unsigned long demande, ...)
{
    va_list suite;
    va_start(suite, demande);
    void *const donnees = va_arg(suite, void *);
    va_end(suite);
    if (fd == ligne && (Trouble(AppelDe(demande)) || PuceRepond(demande, donnees)))
        return puce == nullptr ? -1 : 0;
    const int resultat = __real_ioctl(fd, demande, donnees);
    if (fd == ligne && puce != nullptr && puce->vitesse != 0 && demande == TCGETS2)
        static_cast<termios2 *>(donnees)->c_ospeed = puce->vitesse;
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

std::chrono::steady_clock::time_point __wrap__ZNSt6chrono3_V212steady_clock3nowEv() noexcept
{
    return __real__ZNSt6chrono3_V212steady_clock3nowEv() + avance;
}
}
// NOLINTEND(bugprone-reserved-identifier)

Tempete::Tempete()
{
    tempete = true;
    coups = 0;
}

Tempete::~Tempete()
{
    tempete = false;
}

int Tempete::Coups() const
{
    return coups;
}

Rate::Rate(Appel appel, int erreur)
{
    rate = appel;
    erreurRatee = erreur;
}

Rate::~Rate()
{
    rate = Appel::Aucun;
}

HorlogeAvancee::~HorlogeAvancee()
{
    avance = {};
}

void HorlogeAvancee::Avance(std::chrono::nanoseconds duree)
{
    avance += duree;
}

PuceFeinte::PuceFeinte()
{
    puce = this;
}

void PuceFeinte::Tait()
{
    puce = nullptr;
}
