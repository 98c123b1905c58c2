#pragma once

#include <QString>

// The net under the program text. A changed text that leaves the pane unsaved, in whatever way, is kept in the folder
// "Sauvegardes" first; while it is being changed it is written there now and then, so that it outlives the program. The
// operator is asked nothing for it. What cannot be written stops no command and is told once a run.

/// Ties the net to the pane. Once, when the main window exists.
void BrancheFilet();

/// Keeps the text of the pane when it is changed, unsaved and not empty, and tells where it stands: once for one state
/// of the text. "" when there is nothing to keep, or when it could not be written. What puts another text into the pane
/// does this by itself.
QString RetientTexte();

/// The program ends: the text is kept. nonEnregistre: the operator wanted it saved and it was not, so he is told where
/// it stands, or that it stands nowhere.
void RetientTexteFinal(bool nonEnregistre);

/// The start: asks of the texts that dead runs of the program have left, the newest first, whether to open them, until
/// one is opened; of the others it tells how many there are and where. The one becomes a changed document that stands
/// in "Sauvegardes", never in the place of the file that it once came from.
void ProposeTextesRetrouves();
