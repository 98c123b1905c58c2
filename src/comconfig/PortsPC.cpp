#include "comconfig/PortsPC.h"

#include "locale/Langue.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr Texte3 Present{u"présent", u"present", u"presente"};
constexpr Texte3 SansPuce{u"aucun port derrière ce nom", u"no port behind this name", u"ningún puerto con este nombre"};
constexpr Texte3 Absent{u"aucun périphérique sur ce PC", u"no device on this PC", u"ningún periférico en este PC"};

/// Linux keeps the names of more ports ready than the PC has; those without a chip are of type 0.
bool EstSansPuce(const QString &peripherique)
{
    QFile type(QStringLiteral("/sys/class/tty/%1/type").arg(QFileInfo(peripherique).fileName()));
    return type.open(QIODevice::ReadOnly) && type.readAll().trimmed() == "0";
}

} // namespace

QString DecritPort(int numPort)
{
    const QString nom = QStringLiteral("Com%1 : ").arg(numPort);
    const QString chemin = frmPrinc->MSComm1->CheminPort(numPort);
    if (chemin.isEmpty())
        return nom + Texte(Absent);
    const QString peripherique = QFileInfo(chemin).canonicalFilePath();
    return nom + peripherique + QStringLiteral(", ") + Texte(EstSansPuce(peripherique) ? SansPuce : Present);
}
