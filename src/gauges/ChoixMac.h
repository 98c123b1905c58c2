#pragma once

#include <QString>

// The file dialogs for machine configurations. Both leave the file chosen in NomCompletMac and NomMac, and raise
// DialogueAnnule if the operator cancels. They always reset CancelError of the dialog.

/// Asks for a .mac file and reads it into ParamMac. Also raises what LitMac raises.
void DemandeFichierMac();

/// Asks for the .mac file to write, first offering chemin ("" for none). A name typed without an ending gets ".mac".
void DemandeNomMac(const QString &chemin);
