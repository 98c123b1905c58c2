#pragma once

#include <QList>
#include <QString>

// The paths that the program keeps in mind from one command to the next, and what becomes of them when the operator
// renames a folder in the explorer, or when one goes.

/// Names the variables that hold them: receptions, the folders that receptions go to, and autres. Once, at the start.
void TientChemins(const QList<QString *> &receptions, const QList<QString *> &autres);

/// Renames the folder (or link) ancien to nouveau, as RenommeDossier() does. Every path kept that leads through it
/// changes with it, and so does the title of the main window. Nothing is saved. Raises as RenommeDossier(), and the
/// paths then stay as they are.
void RenommeEtSuit(const QString &ancien, const QString &nouveau);

/// Sends the receptions that went to dossier, which has gone, to the application folder.
void QuitteReceptions(const QString &dossier);
