#pragma once

#include <QString>

// The file dialogs for machine configurations. NomCompletMac and NomMac name the choice. Both raise DialogueAnnule; the
// dialog's CancelError is reset afterwards, whatever came of it.

/// Asks for a .mac file and reads it into ParamMac. Also raises what LitMac raises.
void DemandeFichierMac();

/// Asks for the .mac file to write, first offering chemin ("" for none). A name typed without an ending gets ".mac".
void DemandeNomMac(const QString &chemin);
