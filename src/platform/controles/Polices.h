#pragma once

#include <future>

/// Reads the system's list of fonts on a separate thread. This is the longest single step of the start, and it costs
/// next to no time when it begins before the application object is created. Wait for the result before the first window
/// is made, otherwise the list is read twice. Each system has its own unit for this.
std::future<void> LitPolices();
