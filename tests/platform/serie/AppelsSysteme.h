#pragma once

#include <linux/serial.h>

// A system that fails: the calls of the program's serial line to it are replaced by the linker in the test that
// includes this (see tests/CMakeLists.txt). Only what is opened as "Com2" is touched.

enum class Appel { Aucun, Ouvre, Interroge, Regle, Lit, Ecrit };

/// A serial chip behind the line.
struct Puce
{
    int lignes = 0; ///< TIOCM_...
    serial_icounter_struct compteurs{};
    unsigned vitesse = 0; ///< what it makes of any speed; 0: that speed
};

/// What goes wrong from now on.
struct Systeme
{
    Appel rate = Appel::Aucun; ///< each call of that kind fails
    int erreur = 0;            ///< with this errno
    /// Every second call is interrupted, and what is read or written goes one character at a time, or not for now.
    bool tempete = false;
    int coups = 0;              ///< calls in the storm so far
    const Puce *puce = nullptr; ///< none: what the pseudo-terminal itself answers
};
extern Systeme systeme;
