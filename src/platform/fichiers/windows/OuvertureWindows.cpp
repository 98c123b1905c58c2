#include "platform/fichiers/windows/OuvertureWindows.h"

PoigneeWindows OuvreEntree(const std::wstring &chemin, DWORD acces, DWORD creation, DWORD drapeaux)
{
    const HANDLE entree = CreateFileW(chemin.c_str(), acces, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, creation, drapeaux, nullptr);
    return PoigneeWindows(entree == INVALID_HANDLE_VALUE ? nullptr : entree);
}
