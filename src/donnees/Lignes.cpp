#include "donnees/Lignes.h"

#include "platform/base/Nombres.h"

#include <QStringList>

#include <algorithm>

std::vector<QString> Lignes(CapaciteLignes + 1);
int NbLignes = 0;
int LigneMaxi = 0;

void VideLignes()
{
    std::fill(Lignes.begin() + 1, Lignes.end(), QString());
}

void CalculeLigne(const QString &texte)
{
    VideLignes();
    qsizetype debut = 0;
    for (std::size_t i = 1; i <= CapaciteLignes; ++i) {
        const qsizetype paire = texte.indexOf(QLatin1String("\r\n"), debut);
        if (paire < 0) {
            Lignes[i] = SansBlancs(texte.mid(debut));
            NbLignes = static_cast<int>(i);
            return;
        }
        Lignes[i] = texte.mid(debut, paire + 1 - debut);
        debut = paire + 1;
    }
}

bool EstBlanche(const QString &ligne)
{
    return std::all_of(ligne.begin(), ligne.end(), [](QChar c) { return c == u' '; });
}

void CalculeMaxi()
{
    LigneMaxi = CapaciteLignes;
    while (LigneMaxi > 0 && EstBlanche(Lignes[static_cast<std::size_t>(LigneMaxi)]))
        --LigneMaxi;
}

QString TexteLignes()
{
    QStringList textes;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(LigneMaxi); ++i) {
        QString ligne = Lignes[i];
        while (ligne.endsWith(u' '))
            ligne.chop(1);
        textes << ligne;
    }
    return textes.join(QLatin1String("\r\n"));
}
