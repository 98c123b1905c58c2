#pragma once

#include <QStringList>

// The file in the folder "Sauvegardes" that holds the text being changed, until that is saved. Its name has a number of
// this run of the program, and the run keeps the file locked. So the file of a crashed run can be told from the file of
// another running copy.

/// Replaces the content of that file by texte, whole or not at all, on a thread of its own. nom: path or name of the
/// program, "" for one without a name. A failure is reported as by GardeTexte(), from the event loop. Does nothing
/// while EcritureEnRoute().
void EcritEnCours(const QString &nom, const QString &texte);

/// True while an EcritEnCours() is still writing.
bool EcritureEnRoute();

/// Removes the file, because the text was saved or has left the pane. A writing under way is dropped. Does not wait for
/// the disk.
void RetireEnCours();

/// Turns the file into a kept text of "Sauvegardes", because the pane was emptied before another text came into it.
void ClasseEnCours();

/// Leaves the file as it was last written, because the text could not be kept elsewhere. The next start finds it.
void LaisseEnCours();

/// Same as RetireEnCours(), and waits until the writing thread has ended. At the end of the program.
void FinitEnCours();

/// The files of other runs, crashed or still running, the newest first. A file that was not written to its end is
/// removed.
QStringList TextesDAutrui();

/// Turns such a file, which the caller holds locked, into a kept text of "Sauvegardes" and gives its new path.
QString ClasseTexte(const QString &chemin);

/// The name of the program, from the name of such a file.
QString NomDuTexteEnCours(const QString &chemin);
