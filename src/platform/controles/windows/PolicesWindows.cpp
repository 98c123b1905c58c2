#include "platform/controles/Polices.h"

/// Nothing to do: Windows has the list ready for all programs.
std::future<void> LitPolices()
{
    return std::async(std::launch::deferred, [] {});
}
