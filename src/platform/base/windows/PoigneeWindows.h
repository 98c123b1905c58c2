#pragma once

#include <memory>

/// Gives back to Windows what it has lent.
struct FermePoignee
{
    void operator()(void *poignee) const;
};

/// Something that Windows has lent: a device, an event, a timer.
using PoigneeWindows = std::unique_ptr<void, FermePoignee>;
