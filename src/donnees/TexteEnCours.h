#pragma once

#include <QStringList>

// The one file, in the folder "Sauvegardes", in which the text that is being changed stands until it is saved. Its name
// bears a number of this run of the program, which holds it: what a run that died has left is told from what another
// copy of the program is writing.

/// Writes texte in the place of what was written last, on a thread of its own, whole or not at all. nom: path or name
/// of the program, "" for one without. What fails is told as by GardeTexte(), from the event loop. Does nothing while
/// EcritureEnRoute().
void EcritEnCours(const QString &nom, const QString &texte);

/// True while an EcritEnCours() has not come to its end.
bool EcritureEnRoute();

/// The text was saved, or has left the pane: the file goes, and what is on its way does not come. Waits for no disk.
void RetireEnCours();

/// The text could not be kept: what was written of it last stays, for the next start to find.
void LaisseEnCours();

/// Same as RetireEnCours(), at the end of the program: waits until nothing writes any more.
void FinitEnCours();

/// The files that other runs have left, or hold, the newest first. What one of them did not write to its end is
/// removed.
QStringList TextesDAutrui();

/// Gives such a file, which is held, its place among what is kept, and tells where it stands then.
QString ClasseTexte(const QString &chemin);

/// The name of the program in such a file.
QString NomDuTexteEnCours(const QString &chemin);
