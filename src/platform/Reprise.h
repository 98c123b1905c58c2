#pragma once

#include <QString>

#include <cerrno>
#include <cstring>

/// Makes a system call again for as long as a signal interrupts it.
template <typename Appel>
auto Reprise(Appel appel)
{
    auto resultat = appel();
    while (resultat < 0 && errno == EINTR)
        resultat = appel();
    return resultat;
}

/// The system's words for its error.
inline QString TexteSysteme(int erreur = errno)
{
    return QString::fromLocal8Bit(std::strerror(erreur)); // NOLINT(concurrency-mt-unsafe)
}
