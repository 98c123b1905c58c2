#include "platform/controles/Polices.h"

#ifdef AVEC_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

std::future<void> LitPolices()
{
#ifdef AVEC_FONTCONFIG
    return std::async(std::launch::async, [] { FcInit(); });
#else
    return std::async(std::launch::deferred, [] {});
#endif
}
