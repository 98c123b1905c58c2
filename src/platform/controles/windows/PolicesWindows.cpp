#include "platform/controles/Polices.h"

/// Nothing is to be done: Windows keeps the list ready for all programs.
std::future<void> LitPolices()
{
    return std::async(std::launch::deferred, [] {});
}
