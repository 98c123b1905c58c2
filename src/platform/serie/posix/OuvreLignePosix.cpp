#include "platform/serie/OuvreLigne.h"

#include "platform/base/Erreur.h"
#include "platform/base/Journal.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/posix/LignePosix.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace {

/// The first path that exists: ComN in the folder of links, /dev/comN, /dev/ttyS(N-1); "" when none does.
QString CheminPort(int numPort, const QString &dossierPorts)
{
    QStringList chemins;
    if (!dossierPorts.isEmpty())
        chemins << QDir(dossierPorts).filePath(QStringLiteral("Com%1").arg(numPort));
    chemins << QStringLiteral("/dev/com%1").arg(numPort) << QStringLiteral("/dev/ttyS%1").arg(numPort - 1);
    const auto trouve =
        std::find_if(chemins.cbegin(), chemins.cend(), [](const QString &c) { return QFileInfo::exists(c); });
    return trouve == chemins.cend() ? QString() : *trouve;
}

/// Linux provides more /dev/ttyS names than the PC has ports. Those without a chip have type 0.
bool EstSansPuce(const QString &peripherique)
{
    QFile type(QStringLiteral("/sys/class/tty/%1/type").arg(QFileInfo(peripherique).fileName()));
    return type.open(QIODevice::ReadOnly) && type.readAll().trimmed() == "0";
}

} // namespace

AppareilPort TrouveAppareil(int numPort, const QString &dossierPorts)
{
    const QString chemin = CheminPort(numPort, dossierPorts);
    if (chemin.isEmpty())
        return {};
    const QString peripherique = QFileInfo(chemin).canonicalFilePath();
    return {peripherique, EstSansPuce(peripherique)};
}

std::unique_ptr<LigneSerie> OuvreLigne(int numPort, const QString &dossierPorts)
{
    const QString chemin = CheminPort(numPort, dossierPorts);
    if (chemin.isEmpty())
        throw Erreur(ErreurPort::Inconnu, QStringLiteral("Com%1").arg(numPort));
    qCInfo(JournalLigne) << "opens" << chemin << "for port" << numPort;
    return std::make_unique<LignePosix>(chemin);
}
