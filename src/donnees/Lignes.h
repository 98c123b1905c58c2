#pragma once

#include "donnees/TableNumerotee.h"

#include <QString>

constexpr int CapaciteLignes = 25000; ///< highest entry of Lignes

/// The line table that transfers and gauge routines share: Lignes(1) to Lignes(CapaciteLignes).
struct TableLignes : TableNumerotee<QString>
{
    TableLignes()
        : TableNumerotee(CapaciteLignes)
    {
    }

    int NbLignes = 0;  ///< last entry that CalculeLigne() filled
    int LigneMaxi = 0; ///< last entry that CalculeMaxi() found in use
};

extern TableLignes Lignes; ///< the one table

/// Empties the entries 1 to 25000.
void VideLignes();

/// Cuts texte into Lignes between the CR and the LF of each CR LF: an entry keeps its CR, and the LF begins the next
/// one. The last entry also loses the blanks at both its ends. A text of more than 25000 lines fills the table and
/// leaves NbLignes as it was.
void CalculeLigne(const QString &texte);

/// True for a line that is empty or holds only blanks.
bool EstBlanche(const QString &ligne);

/// Sets LigneMaxi to the last entry that holds more than blanks, 0 when there is none.
void CalculeMaxi();

/// The entries 1 to LigneMaxi as one text, with CR LF between them. Blanks at the end of an entry are left out.
QString TexteLignes();
