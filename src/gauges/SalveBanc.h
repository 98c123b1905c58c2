#pragma once

#include <QString>

// A burst of the presetting bench, as it reads once its control characters are blanks: the mark "TN:", and the fields
// of a measure at fixed columns.

/// The columns of a field, the first one counted from 1.
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

/// True for a number that a gauge, or its value in the units of a gauge file, cannot hold in single precision.
bool EstTropGrand(const QString &champ);

/// True for a burst with a measure that a gauge can hold.
bool EstMesure(const QString &salve);

/// The text that stands in the columns of a burst; a burst that is too short gives what it has of them.
inline QString Champ(const QString &salve, Colonnes colonnes)
{
    return salve.mid(colonnes.debut - 1, colonnes.longueur);
}
