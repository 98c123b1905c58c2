#pragma once

class QFileDialog;

/// Makes a dialog for files or folders stand in the operator's language: the system's own dialog speaks the system's,
/// and so does the column that names the kinds of files; sizes and dates are written as QLocale() says, and shown
/// whole, as are places. To be called before anything else is asked of the dialog.
void DansLaLangue(QFileDialog &dialogue);

/// Makes a dialog choose and do nothing else: a slip of the hand in it must not move, rename or delete a program.
/// nouveauDossier: a new folder can be made in it; its name is asked first, since none can be changed there.
void NeFaitQueChoisir(QFileDialog &dialogue, bool nouveauDossier);
