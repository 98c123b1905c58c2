#pragma once

#include <QList>
#include <QString>

// The paths that the program keeps in mind from one command to the next, and what becomes of them when the operator
// renames a folder in the explorer, or when one goes.

/// Names the variables that hold them: receptions, the folders that receptions go to, and autres. Once, at the start.
void TientChemins(const QList<QString *> &receptions, const QList<QString *> &autres);

/// Gives the folder (or link) ancien the path nouveau, as RenommeDossier() does, and to every path kept that leads
/// through it; the title of the main window follows. Nothing is saved. Raises as RenommeDossier(), with all as it was.
void RenommeEtSuit(const QString &ancien, const QString &nouveau);

/// The receptions that go to dossier, which is no more, go to the application folder.
void QuitteReceptions(const QString &dossier);
