#pragma once

#include <QString>

class QFileDialog;

/// The folder in which a dialog opens: dossier, or the nearest folder above it when it no longer exists. "" is the
/// current folder. Given a missing folder, the toolkit would offer its name as that of a file.
QString DossierDeDepart(const QString &dossier);

/// Makes a dialog for files or folders show the operator's language instead of the system's: it is the toolkit's own
/// dialog, without the column that names the kinds of files, with sizes and dates as QLocale() writes them. Columns and
/// places are wide enough for what they show. Where the system's own dialog is used (FichiersDuSysteme()) it stays as
/// it is. To be called before anything else is set on the dialog.
void DansLaLangue(QFileDialog &dialogue);

/// Keeps a dialog to choosing: by mistake an operator could otherwise move, rename or delete a program in it.
/// The system's own dialog lets him do so.
/// nouveauDossier: a button makes a new folder, whose name is asked first.
void NeFaitQueChoisir(QFileDialog &dialogue, bool nouveauDossier);
