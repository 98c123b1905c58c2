#pragma once

#include <QString>

/// Deletes the folder (or link) at chemin for good, with everything in it. chemin has no separator at its end. The
/// operator is told what it holds and is asked first. A long deletion shows its progress and can be stopped. At the end
/// he is told how it went, and what could not be deleted. Raises nothing.
void SupprimeDossier(const QString &chemin);
