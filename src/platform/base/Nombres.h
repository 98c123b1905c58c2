#pragma once

#include <QString>

// The number forms of the program, and the blanks around them. They depend on no locale: the decimal separator is a
// point.

/// Numeric value of texte: blanks are skipped and the number is read up to the first character that cannot belong to
/// it; 0 when none stands there. Never raises.
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
