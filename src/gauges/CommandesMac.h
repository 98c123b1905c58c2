#pragma once

// The commands through which the operator reaches the machine configurations.

/// Asks the operator for a .mac file, which NomCompletMac and NomMac then name, and reads it into ParamMac.
/// Raises DialogueAnnule and what LitMac raises; CancelError of the file dialog is reset then.
void DemandeFichierMac();

void Mn_CreeConfMac();  ///< a new configuration, from the ordinary values
void Mn_ModifConfMac(); ///< one from a file
