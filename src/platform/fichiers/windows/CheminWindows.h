#pragma once

#include <QString>

#include <string>

// Paths as the functions of Windows take them.

/// Converts chemin to the form that the system takes literally and at any length: \\?\C:\... or \\?\UNC\.... In this
/// form the system no longer refuses reserved names; check them before with NomPossible.
std::wstring CheminSysteme(const QString &chemin);

/// False when Windows reserves the last name of chemin: device names such as CON, NUL or COM2 with any extension, names
/// that end in a point or a blank, and names with a control character or any of < > : " | ? *
bool NomPossible(const QString &chemin);
