#include "platform/serie/MinuteurPrecis.h"

#include "platform/base/Erreur.h"
#include "platform/base/Reprise.h"
#include "platform/serie/ErreurPort.h"

#include <QSocketNotifier>

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

struct MinuteurPrecis::Interne
{
    Interne() = default;
    ~Interne()
    {
        reveil.setEnabled(false); // before the descriptor is closed
        close(fd);
    }
    Q_DISABLE_COPY_MOVE(Interne)

    const int fd = OuvreMinuteur();
    QSocketNotifier reveil{fd, QSocketNotifier::Read};
};

MinuteurPrecis::MinuteurPrecis()
    : m_interne(std::make_unique<Interne>())
{
    connect(&m_interne->reveil, &QSocketNotifier::activated, this, [this] {
        std::uint64_t fois = 0;
        // Nothing to read: the timer was armed again meanwhile and has not expired yet.
        if (Reprise([&] { return read(m_interne->fd, &fois, sizeof fois); }) == sizeof fois)
            Q_EMIT Echu();
    });
}

MinuteurPrecis::~MinuteurPrecis() = default;

void MinuteurPrecis::Arme(std::chrono::nanoseconds delai)
{
    delai = std::max(delai, std::chrono::nanoseconds(1)); // 0 would stop it
    const auto s = std::chrono::floor<std::chrono::seconds>(delai);
    const itimerspec echeance{{}, {s.count(), (delai - s).count()}};
    timerfd_settime(m_interne->fd, 0, &echeance, nullptr);
}

void MinuteurPrecis::Arrete()
{
    const itimerspec jamais{};
    timerfd_settime(m_interne->fd, 0, &jamais, nullptr);
}
