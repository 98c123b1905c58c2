#pragma once

#include <span>

class QWidget;

/// A picture to take: its name, and what opens the window with sample data. The window is the caller's, but for the
/// main window and its menus, which exist all along.
struct Vue
{
    const char *nom;
    QWidget *(*ouvre)();
};

/// A box of the program or of the system to take a picture of: its name, and the command that asks it, which comes back
/// once it is answered.
struct VueModale
{
    const char *nom;
    void (*demande)();
};

/// All pictures, in the order in which they are taken; a new window is one more line.
extern const std::span<const Vue> Vues;
extern const std::span<const VueModale> VuesModales;

/// Loads a sample program and a sample configuration, as an operator at work has them. The main window exists.
void ChargeExemples();
