#pragma once

#include "platform/base/windows/PoigneeWindows.h"

#include <string>

#include <windows.h>

/// Opens the file or folder at chemin. Other programs may read, write, rename and delete it meanwhile, as on other
/// systems. Gives nullptr when it cannot be opened; GetLastError() then tells why.
/// acces, creation, drapeaux: those of CreateFileW.
PoigneeWindows OuvreEntree(const std::wstring &chemin, DWORD acces, DWORD creation,
                           DWORD drapeaux = FILE_ATTRIBUTE_NORMAL);
