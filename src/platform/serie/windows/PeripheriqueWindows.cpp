#include "platform/serie/windows/PeripheriqueWindows.h"

#include <QScopeGuard>

#include <array>
#include <string>

#include <windows.h>
// Behind the system's own header.
#include <setupapi.h>

namespace {

/// The device interface that every serial port has, {86E0D1E0-8089-11D0-9CE4-08003E301F73}.
constexpr GUID InterfacePort = {0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}};

constexpr DWORD TailleTexte = 256; // in characters; the names that Windows gives are shorter

QString Propriete(HDEVINFO liste, SP_DEVINFO_DATA &appareil, DWORD propriete)
{
    std::array<wchar_t, TailleTexte> texte{};
    SetupDiGetDeviceRegistryPropertyW(liste, &appareil, propriete, nullptr, reinterpret_cast<BYTE *>(texte.data()),
                                      sizeof texte - sizeof(wchar_t), nullptr);
    return QString::fromWCharArray(texte.data());
}

/// The name by which programs open the device, such as "COM3".
QString NomPort(HDEVINFO liste, SP_DEVINFO_DATA &appareil)
{
    const HKEY cle = SetupDiOpenDevRegKey(liste, &appareil, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
    if (cle == INVALID_HANDLE_VALUE)
        return {};
    std::array<wchar_t, TailleTexte> texte{};
    DWORD taille = sizeof texte;
    RegGetValueW(cle, nullptr, L"PortName", RRF_RT_REG_SZ, nullptr, texte.data(), &taille);
    RegCloseKey(cle);
    return QString::fromWCharArray(texte.data());
}

} // namespace

PeripheriqueWindows TrouvePeripherique(const QString &port)
{
    const HDEVINFO liste =
        SetupDiGetClassDevsW(&InterfacePort, nullptr, nullptr, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    if (liste == INVALID_HANDLE_VALUE)
        return {};
    const auto fin = qScopeGuard([liste] { SetupDiDestroyDeviceInfoList(liste); });
    SP_DEVINFO_DATA appareil{};
    appareil.cbSize = sizeof appareil;
    for (DWORD i = 0; SetupDiEnumDeviceInfo(liste, i, &appareil) != FALSE; ++i) {
        if (NomPort(liste, appareil).compare(port, Qt::CaseInsensitive) == 0)
            return {Propriete(liste, appareil, SPDRP_FRIENDLYNAME), Propriete(liste, appareil, SPDRP_SERVICE)};
    }
    return {};
}
