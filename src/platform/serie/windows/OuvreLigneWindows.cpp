#include "platform/serie/OuvreLigne.h"

#include "platform/base/Journal.h"
#include "platform/serie/windows/LigneWindows.h"
#include "platform/serie/windows/PeripheriqueWindows.h"

#include <array>

#include <windows.h>

// The folder Ports has no use here: the Device Manager gives each port its number, and the adapter keeps it.

namespace {

constexpr DWORD TailleNom = 1024;

QString NomPort(int numPort)
{
    return QStringLiteral("COM%1").arg(numPort);
}

/// The internal Windows name of the device behind port, "" if there is none.
QString NomInterne(const QString &port)
{
    std::array<wchar_t, TailleNom> texte{};
    QueryDosDeviceW(port.toStdWString().c_str(), texte.data(), TailleNom);
    return QString::fromWCharArray(texte.data());
}

} // namespace

AppareilPort TrouveAppareil(int numPort, const QString & /*dossierPorts*/)
{
    const QString port = NomPort(numPort);
    const QString nom = TrouvePeripherique(port).nom;
    return {nom.isEmpty() ? NomInterne(port) : nom, false};
}

std::unique_ptr<LigneSerie> OuvreLigne(int numPort, const QString & /*dossierPorts*/)
{
    const QString port = NomPort(numPort);
    const QString pilote = TrouvePeripherique(port).pilote;
    qCInfo(JournalLigne) << "opens" << port << "with the driver" << pilote;
    return std::make_unique<LigneWindows>(port, pilote);
}
