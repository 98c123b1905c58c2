#include "donnees/Lignes.h"

#include "platform/base/Nombres.h"

#include <QStringList>

#include <algorithm>

TableLignes Lignes;

void VideLignes()
{
    std::fill(Lignes.begin(), Lignes.end(), QString());
}

void CalculeLigne(const QString &texte)
{
    VideLignes();
    qsizetype debut = 0;
    for (int i = 1; i <= CapaciteLignes; ++i) {
        const qsizetype paire = texte.indexOf(QLatin1String("\r\n"), debut);
        if (paire < 0) {
            Lignes(i) = SansBlancs(texte.mid(debut));
            Lignes.NbLignes = i;
            return;
        }
        Lignes(i) = texte.mid(debut, paire + 1 - debut);
        debut = paire + 1;
    }
}

bool EstBlanche(const QString &ligne)
{
    return std::all_of(ligne.begin(), ligne.end(), [](QChar c) { return c == u' '; });
}

void CalculeMaxi()
{
    Lignes.LigneMaxi = CapaciteLignes;
    while (Lignes.LigneMaxi > 0 && EstBlanche(Lignes(Lignes.LigneMaxi)))
        --Lignes.LigneMaxi;
}

QString TexteLignes()
{
    QStringList textes;
    for (int i = 1; i <= Lignes.LigneMaxi; ++i) {
        QString ligne = Lignes(i);
        while (ligne.endsWith(u' '))
            ligne.chop(1);
        textes << ligne;
    }
    return textes.join(QLatin1String("\r\n"));
}
