#pragma once

#include <span>

class QWidget;

/// A picture to take: its name, and the function that opens the window with sample data. The caller deletes the window,
/// except the main window and its menus.
struct Vue
{
    const char *nom;
    QWidget *(*ouvre)();
};

/// A box to take a picture of: its name, and the command that shows it and returns once it is answered.
struct VueModale
{
    const char *nom;
    void (*demande)();
};

/// All pictures, in the order in which they are taken. A new window needs one more line.
extern const std::span<const Vue> Vues;
extern const std::span<const VueModale> VuesModales;

/// Loads a sample program and a sample configuration. The main window exists.
void ChargeExemples();
