#pragma once

#include <QString>

// Programs of the system that the operator's files are handed to. They are not waited for; where one cannot be started
// the operator is told. Nothing is raised.

/// Opens the file at chemin with an editor. commande: the editor's path, with arguments behind it if there are any.
void OuvreAvecEditeur(const QString &commande, const QString &chemin);

/// Opens the file at chemin with the system's word processor.
void OuvreAvecTraitementDeTexte(const QString &chemin);
