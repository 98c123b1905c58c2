#include "programme/OuvreFichier.h"

#include "comconfig/CommandesConf.h"
#include "gauges/CommandesMac.h"
#include "locale/Legendes.h"
#include "shell/Document.h"

#include <QFileInfo>

void OuvreFichier(const QString &chemin)
{
    AppliqueLangue();
    const QString extension = QFileInfo(chemin).suffix().toLower();
    if (extension == QLatin1String("par"))
        ChargeConf(chemin);
    else if (extension == QLatin1String("mac"))
        ModifieConfMac(chemin);
    else
        OuvreDepose(chemin);
}
