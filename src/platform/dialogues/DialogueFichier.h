#pragma once

class QFileDialog;

/// Makes a dialog for files or folders stand in the operator's language: the system's own dialog speaks the system's,
/// and so does the column that names the kinds of files; sizes, dates and places are shown whole. To be called before
/// anything else is asked of the dialog.
void DansLaLangue(QFileDialog &dialogue);
