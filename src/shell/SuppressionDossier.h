#pragma once

#include <QString>

/// Deletes the folder (or the link) at chemin, without final separator, with all it holds, for good: tells the operator
/// what it holds and asks, shows the progress of a long deletion, which he can stop, and says how it ended. Where
/// something resists, he is told what, and what is left. Raises nothing.
void SupprimeDossier(const QString &chemin);
