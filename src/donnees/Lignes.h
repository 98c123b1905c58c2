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

/// Cuts texte into Lignes at each CR LF. An entry cut so keeps its CR, and the LF stays at the head of the next: the
/// first reads text CR, those between LF text CR, the last LF text without its blanks at both ends.
/// A text of more than 25000 lines fills the table and leaves NbLignes as it was.
void CalculeLigne(const QString &texte);

/// True for a line without anything but blanks.
bool EstBlanche(const QString &ligne);

/// Finds the last entry that holds more than blanks; LigneMaxi is 0 when there is none.
void CalculeMaxi();

/// The entries 1 to LigneMaxi as one text: without the blanks at their ends, with a CR LF between them.
QString TexteLignes();
