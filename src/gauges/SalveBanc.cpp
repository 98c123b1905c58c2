#include "gauges/SalveBanc.h"

#include "platform/base/Nombres.h"

#include <cmath>
#include <limits>

bool EstTropGrand(const QString &champ)
{
    constexpr double facteur = 2000; // a radius in mm as a diameter in micrometres
    QString nombre = champ;
    const bool infini = std::isinf(nombre.remove(u' ').toDouble()); // which Val() takes for 0
    return infini || std::fabs(Val(champ)) * facteur > static_cast<double>(std::numeric_limits<float>::max());
}

bool EstMesure(const QString &salve)
{
    return salve.startsWith(QStringView(MarqueMesure)) && !EstTropGrand(Champ(salve, ColonnesZ)) &&
           !EstTropGrand(Champ(salve, ColonnesX));
}
