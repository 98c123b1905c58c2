#pragma once

#include <QString>

// Programs of the system that open the operator's files. The program does not wait for them. When one cannot be started
// the operator is told; nothing is raised.

/// Opens the file at chemin with an editor. commande: the editor's path, possibly followed by arguments.
void OuvreAvecEditeur(const QString &commande, const QString &chemin);

/// Opens the file at chemin with the system's word processor.
void OuvreAvecTraitementDeTexte(const QString &chemin);
