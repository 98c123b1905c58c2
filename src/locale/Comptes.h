#pragma once

#include "locale/Langue.h"

#include <QString>

#include <chrono>

// Numbers as the operator reads them in a sentence, in the language of LangIndex. With a LangIndex that chooses no text
// they are the French ones.

/// A noun for what is counted: for one, and for several.
struct Nom3
{
    Texte3 un;
    Texte3 plusieurs;
};

inline constexpr Nom3 NomLignes{{u"ligne", u"line", u"línea"}, {u"lignes", u"lines", u"líneas"}};

/// A whole number with its digits in groups: "18 886", "18,886", "18.886".
QString NombreEnClair(qint64 nombre);

/// The number and the noun in the form that goes with it: "0 ligne", "0 lines", "1 line".
QString Compte(qint64 nombre, const Nom3 &nom);

/// A time, to a tenth of a second below a minute: "2,6 s", "1 min 05 s", "1 h 02 min"; less than that
/// tenth as such. duree: not negative.
QString DureeEnClair(std::chrono::milliseconds duree);
