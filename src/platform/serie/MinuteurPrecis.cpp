#include "platform/serie/MinuteurPrecis.h"

#include "platform/base/Erreur.h"
#include "platform/base/Reprise.h"
#include "platform/serie/ErreurPort.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>

namespace {

int OuvreMinuteur()
{
    const int fd = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (fd < 0)
        throw Erreur(ErreurPort::Indisponible, QString(), errno);
    return fd;
}

} // namespace

MinuteurPrecis::MinuteurPrecis()
    : m_fd(OuvreMinuteur())
    , m_reveil(m_fd, QSocketNotifier::Read)
{
    connect(&m_reveil, &QSocketNotifier::activated, this, &MinuteurPrecis::Lit);
}

MinuteurPrecis::~MinuteurPrecis()
{
    m_reveil.setEnabled(false); // before its descriptor is gone
    close(m_fd);
}

void MinuteurPrecis::Arme(std::chrono::nanoseconds delai)
{
    delai = std::max(delai, std::chrono::nanoseconds(1)); // 0 would stop it
    const auto s = std::chrono::floor<std::chrono::seconds>(delai);
    const itimerspec echeance{{}, {s.count(), (delai - s).count()}};
    timerfd_settime(m_fd, 0, &echeance, nullptr);
}

void MinuteurPrecis::Arrete()
{
    const itimerspec jamais{};
    timerfd_settime(m_fd, 0, &jamais, nullptr);
}

void MinuteurPrecis::Lit()
{
    std::uint64_t fois = 0;
    // What was armed anew meanwhile has not come yet.
    if (Reprise([&] { return read(m_fd, &fois, sizeof fois); }) == sizeof fois)
        Q_EMIT Echu();
}
