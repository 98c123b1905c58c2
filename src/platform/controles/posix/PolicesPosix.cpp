#include "platform/controles/Polices.h"

#include <fontconfig/fontconfig.h>

std::future<void> LitPolices()
{
    return std::async(std::launch::async, [] { FcInit(); });
}
