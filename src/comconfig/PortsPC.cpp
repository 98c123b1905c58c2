#include "comconfig/PortsPC.h"

#include "locale/Langue.h"
#include "platform/serie/MSComm.h"
#include "platform/serie/OuvreLigne.h"
#include "shell/FrmPrinc.h"

namespace {

constexpr Texte3 Present{u"présent", u"present", u"presente"};
constexpr Texte3 SansPuce{u"aucun port derrière ce nom", u"no port behind this name", u"ningún puerto con este nombre"};
constexpr Texte3 Absent{u"aucun périphérique sur ce PC", u"no device on this PC", u"ningún periférico en este PC"};

} // namespace

QString DecritPort(int numPort)
{
    const QString nom = QStringLiteral("Com%1 : ").arg(numPort);
    const AppareilPort appareil = TrouveAppareil(numPort, frmPrinc->MSComm1->DossierPorts());
    if (appareil.nom.isEmpty())
        return nom + Texte(Absent);
    return nom + appareil.nom + QStringLiteral(", ") + Texte(appareil.sansPuce ? SansPuce : Present);
}
