#include "platform/base/Console.h"

#include <cstdio>
#include <initializer_list>

#include <windows.h>

/// Connected in any case: without a console Qt shows its texts in a message box.
void RelieConsole()
{
    const bool redirigee = GetFileType(GetStdHandle(STD_OUTPUT_HANDLE)) != FILE_TYPE_UNKNOWN;
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0 || redirigee)
        return;
    for (FILE *const sortie : {stdout, stderr})
        static_cast<void>(std::freopen("CONOUT$", "w", sortie));
}
