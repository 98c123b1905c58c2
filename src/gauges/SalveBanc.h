#pragma once

#include <QString>

// The form of a burst of the presetting bench, with blanks in place of control characters: the mark "TN:", and the
// fields of a measure in fixed columns.

/// The columns of a field, counted from 1.
struct Colonnes
{
    int debut;
    int longueur;
};

constexpr Colonnes ColonnesCorrecteur{4, 5};
constexpr Colonnes ColonnesZ{25, 9};
constexpr Colonnes ColonnesX{50, 9};
constexpr Colonnes ColonneMode{62, 1};

/// What a burst with a measure begins with.
inline constexpr char16_t MarqueMesure[] = u"TN:";

/// True for a number that single precision cannot hold, in mm or in the micrometres of a gauge file.
bool EstTropGrand(const QString &champ);

/// True for a burst with a measure that a gauge can hold.
bool EstMesure(const QString &salve);

/// The text in these columns of a burst. A burst that is too short gives what it has of them.
inline QString Champ(const QString &salve, Colonnes colonnes)
{
    return salve.mid(colonnes.debut - 1, colonnes.longueur);
}
