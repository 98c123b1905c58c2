#pragma once

#include <span>

class QWidget;

/// A picture to take: its name, and what opens the window with sample data. The window is the caller's, but for the
/// main window, which exists all along.
struct Vue
{
    const char *nom;
    QWidget *(*ouvre)();
};

/// All pictures, in the order in which they are taken; a new window is one more line.
extern const std::span<const Vue> Vues;

/// Loads a sample program and a sample configuration, as an operator at work has them. The main window exists.
void ChargeExemples();
