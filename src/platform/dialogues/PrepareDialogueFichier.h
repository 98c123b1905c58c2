#pragma once

#include <QString>

class QFileDialog;

/// The folder in which a dialog opens: dossier, or where it has gone the nearest one above it that exists; "" is the
/// current folder. The toolkit would propose the name of a folder that has gone as that of a file.
QString DossierDeDepart(const QString &dossier);

/// Makes a dialog for files or folders stand in the operator's language: the system's own dialog speaks the system's,
/// and so does the column that names the kinds of files; sizes and dates are written as QLocale() says, and shown
/// whole, as are places. To be called before anything else is asked of the dialog.
void DansLaLangue(QFileDialog &dialogue);

/// Makes a dialog choose and do nothing else: a slip of the hand in it must not move, rename or delete a program.
/// nouveauDossier: a new folder can be made in it; its name is asked first, since none can be changed there.
void NeFaitQueChoisir(QFileDialog &dialogue, bool nouveauDossier);
