#pragma once

#include <chrono>
#include <linux/serial.h>

// A system that fails: the calls of the program's serial line to it, and its clock, are replaced by the linker in the
// test that includes this (see tests/CMakeLists.txt). Only the device that the program opens as Com2 is touched.

/// While it lives, every second call is interrupted, and what is read or written goes one character at a time, or not
/// for now.
class Tempete
{
public:
    Tempete();
    ~Tempete();
    int Coups() const; ///< calls disturbed so far
};

enum class Appel { Aucun, Ouvre, Verrouille, Reserve, Interroge, Regle, Regle2, Lit, Ecrit };

/// While it lives, each call of that kind fails with erreur (errno). Regle2: the settings behind the opening.
class Rate
{
public:
    Rate(Appel appel, int erreur);
    ~Rate();
};

/// While it lives, the program's clock may jump ahead.
class HorlogeAvancee
{
public:
    ~HorlogeAvancee();
    void Avance(std::chrono::nanoseconds duree);
};

/// While it lives, the line has a serial chip behind it.
struct PuceFeinte
{
    PuceFeinte();
    ~PuceFeinte() { Tait(); }
    static void Tait(); ///< it has gone

    int lignes = 0; ///< TIOCM_...
    serial_icounter_struct compteurs{};
    unsigned vitesse = 0; ///< what it makes of any speed; 0: that speed
};
