#pragma once

#include "locale/Langue.h"

#include <QString>

#include <chrono>

// Numbers as the operator reads them in a sentence, in the language of LangIndex. When LangIndex is none of the three
// languages they are written as in French.

/// The singular and the plural of a noun for what is counted.
struct Nom3
{
    Texte3 un;
    Texte3 plusieurs;
};

inline constexpr Nom3 NomLignes{{u"ligne", u"line", u"línea"}, {u"lignes", u"lines", u"líneas"}};

/// A whole number with its digits in groups: "18 886", "18,886", "18.886".
QString NombreEnClair(qint64 nombre);

/// The number followed by the noun in its right form: "0 ligne", "0 lines", "1 line".
QString Compte(qint64 nombre, const Nom3 &nom);

/// A duration in words: in tenths of a second below a minute ("2,6 s"), then "1 min 05 s" and "1 h 02 min". A duration
/// below a tenth of a second is said to be shorter than that. duree: not negative.
QString DureeEnClair(std::chrono::milliseconds duree);
