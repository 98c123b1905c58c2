#pragma once

#include <QString>

// Automatic saving of the program text. A changed text that leaves the pane unsaved, in whatever way, is first kept in
// the folder "Sauvegardes". While it is being changed it is written there from time to time, so that it survives a
// crash. The operator is never asked. A failure to write stops no command, and is told once a run.

/// Connects the automatic saving with the pane. Once, when the main window exists.
void BrancheSauvegardeAuto();

/// Keeps the text of the pane, if it is changed, unsaved and not empty, and gives the path of the file. An unchanged
/// text is not kept a second time. "" when there is nothing to keep or it could not be written. Whatever puts another
/// text into the pane triggers this by itself.
QString RetientTexte();

/// Keeps the text at the end of the program, or before a new text begins. nonEnregistre: the operator wanted to save it
/// and that failed or he gave it up; he is then told where it is kept, or that it is lost.
void RetientTexteFinal(bool nonEnregistre);

/// Offers the texts that crashed runs of the program have left, at the start. It asks for each, the newest first,
/// whether to open it, until one is opened, and tells how many others there are and where. The opened one becomes a
/// changed document with its file in "Sauvegardes": the file that it came from is not touched.
void ProposeTextesRetrouves();
