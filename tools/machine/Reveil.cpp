#include "machine/Reveil.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

Reveil::Reveil()
{
    std::array<int, 2> bouts{};
    if (pipe2(bouts.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    m_lecture = bouts[0];
    m_ecriture = bouts[1];
}

Reveil::~Reveil()
{
    close(m_lecture);
    close(m_ecriture);
}

void Reveil::Sonne() noexcept
{
    const int avant = errno; // a signal handler must not change errno
    // Nothing is lost when the pipe is full: it is readable already.
    [[maybe_unused]] const ssize_t ecrits = write(m_ecriture, "", 1);
    errno = avant;
}

void Reveil::Acquitte() noexcept
{
    std::array<char, 64> octets{};
    while (read(m_lecture, octets.data(), octets.size()) > 0) {
    }
}
