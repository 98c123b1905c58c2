#pragma once

#include <future>

/// Reads the system's list of fonts on a thread of its own. It is the longest single step of a start, and the first
/// text shown would wait for it; begun before the application object is made, it costs next to no time. The result is
/// to be waited for before the first window, or the list is read twice.
std::future<void> LitPolices();
