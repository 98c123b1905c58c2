#pragma once

#include <QList>
#include <QString>

// The paths that the program remembers from one command to the next. They follow when the operator renames a folder in
// the explorer, or when a folder disappears.

/// Registers the variables that hold such paths, once, at the start. receptions: reception folders; autres: all other
/// paths.
void TientChemins(const QList<QString *> &receptions, const QList<QString *> &autres);

/// Renames the folder (or link) ancien to nouveau, as RenommeDossier() does. Every registered path that leads through
/// it is changed as well, and so is the title of the main window. Nothing is saved. True if there was such a path.
/// Raises as RenommeDossier(), and the paths then stay as they are.
bool RenommeEtSuit(const QString &ancien, const QString &nouveau);

/// Makes the application folder the reception folder wherever that was dossier, which no longer exists.
void QuitteReceptions(const QString &dossier);
