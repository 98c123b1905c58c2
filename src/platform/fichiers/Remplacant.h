#pragma once

#include <QString>

#include <optional>

/// Starts, on fichier, the program that replaces programme on this system. Returns whether one could be started, or
/// nothing when programme needs no replacement. Each system has its own unit for this.
std::optional<bool> LanceRemplacant(const QString &programme, const QString &fichier);
