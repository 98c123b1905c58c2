#pragma once

#include <memory>

/// Closes a handle of Windows.
struct FermePoignee
{
    void operator()(void *poignee) const;
};

/// Owns a handle of Windows: a file, a device, an event, a timer.
using PoigneeWindows = std::unique_ptr<void, FermePoignee>;
