#include "platform/serie/OuvreLigne.h"

#include "platform/serie/ErreurPort.h"
#include "platform/serie/LigneSerie.h"
#include "platform/base/Erreur.h"

AppareilPort TrouveAppareil(int, const QString &)
{
    return {};
}

std::unique_ptr<LigneSerie> OuvreLigne(int numPort, const QString &)
{
    throw Erreur(ErreurPort::Inconnu, QStringLiteral("Com%1").arg(numPort));
}
