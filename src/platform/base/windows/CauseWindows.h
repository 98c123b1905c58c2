#pragma once

#include <windows.h>

// Numbers of GetLastError() that the headers of this compiler lack.

constexpr DWORD ErreurDossier = 336;  ///< ERROR_DIRECTORY_NOT_SUPPORTED: a folder where a file is expected
constexpr DWORD ErreurAppareil = 433; ///< ERROR_NO_SUCH_DEVICE
constexpr DWORD ErreurLien = 681;     ///< ERROR_STOPPED_ON_SYMLINK: a link that must not be followed
constexpr DWORD ErreurQuota = 1295;   ///< ERROR_DISK_QUOTA_EXCEEDED
