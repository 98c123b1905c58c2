#pragma once

#include <QScopeGuard>

#include <csignal>
#include <sys/resource.h>

/// Until the guard goes, no file grows beyond that many bytes: the disk is full.
[[nodiscard]] inline auto DisquePlein(rlim_t place = 0)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit libre{};
    getrlimit(RLIMIT_FSIZE, &libre);
    const rlimit serre{place, libre.rlim_max};
    setrlimit(RLIMIT_FSIZE, &serre);
    return qScopeGuard([libre] { setrlimit(RLIMIT_FSIZE, &libre); });
}
