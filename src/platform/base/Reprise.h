#pragma once

#include <cerrno>

/// Makes a system call, and repeats it as long as a signal interrupts it. Returns what the call returns.
template <typename Appel>
auto Reprise(Appel appel)
{
    auto resultat = appel();
    while (resultat < 0 && errno == EINTR)
        resultat = appel();
    return resultat;
}
