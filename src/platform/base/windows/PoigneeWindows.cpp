#include "platform/base/windows/PoigneeWindows.h"

#include <windows.h>

void FermePoignee::operator()(void *poignee) const
{
    CloseHandle(poignee);
}
