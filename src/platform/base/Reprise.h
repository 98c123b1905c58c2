#pragma once

#include <cerrno>

/// Makes a system call again for as long as a signal interrupts it.
template <typename Appel>
auto Reprise(Appel appel)
{
    auto resultat = appel();
    while (resultat < 0 && errno == EINTR)
        resultat = appel();
    return resultat;
}
