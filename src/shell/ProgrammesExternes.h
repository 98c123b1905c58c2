#pragma once

#include <QString>

// Programs of the system that the operator's files are handed to.

/// Opens the file at chemin with the system's word processor and does not wait for it. Where none can be started the
/// operator is told. Raises nothing.
void OuvreAvecTraitementDeTexte(const QString &chemin);
