#pragma once

#include <QString>

// Conversions between numbers and texts. They do not depend on the locale: the decimal separator is always a point.

/// Numeric value of texte. Blanks are skipped, and the number ends before the first character that cannot belong to it.
/// Without a number the value is 0. Never raises.
double Val(const QString &texte);

/// Text of a whole number with a leading blank (a minus sign instead when it is negative).
QString TexteNombre(qint64 nombre);

/// Text of a single-precision value: at most 7 significant digits, no zero before the point, no trailing zeros, no
/// exponent, and no leading blank. An infinite or undefined value raises Depassement.
QString TexteReel(float valeur);

/// Shortest text of a double-precision value, in the same form.
QString TexteDouble(double valeur);

/// The nearest whole number of 16 bits, a tie going to the even one. Raises Depassement outside -32768 to 32767.
int EnEntier(double valeur);

/// texte without the blanks (character 32 alone) at both ends.
QString SansBlancs(const QString &texte);
