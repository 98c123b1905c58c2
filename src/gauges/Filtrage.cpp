#include "gauges/Filtrage.h"

#include "donnees/Lignes.h"
#include "platform/base/Nombres.h"

#include <algorithm>

void Filtrage()
{
    CalculeMaxi();
    for (int i = 1; i <= Lignes.LigneMaxi; ++i) {
        QString &ligne = Lignes(i);
        std::replace_if(
            ligne.begin(), ligne.end(), [](QChar caractere) { return caractere < u' '; }, QChar(u' '));
        ligne = SansBlancs(ligne);
    }
}
