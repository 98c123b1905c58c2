#pragma once

#include <chrono>

/// The clock that times the line and the keyboard. It runs evenly, whatever the time of day is set to.
struct Horloge
{
    using Instant = std::chrono::time_point<std::chrono::steady_clock, std::chrono::nanoseconds>;

    /// The time now. A test that cannot wait sets a clock of its own.
    static inline Instant (*Maintenant)() = []() -> Instant { return std::chrono::steady_clock::now(); };
};
