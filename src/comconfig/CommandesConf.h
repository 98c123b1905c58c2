#pragma once

#include <QString>

// The commands through which the operator reaches the communication configuration.

/// Loads the .par file fichier as the current configuration at the start; "" loads nothing. A missing file is told to
/// the operator. Raises what LireFichierPar raises, with the transfer commands still disabled.
void ConfDefaut(const QString &fichier);

/// Asks the operator for a .par file and makes it the current configuration.
void Mnu_ChargeConf();

/// Asks for a .par file, first in dossier; FicConf and NomConf then name the choice. Raises DialogueAnnule.
void DemandeFichierPar(const QString &dossier);

/// Shows the name of the configuration and its comment in the status panel.
void MontreConfiguration();

/// Tells that a .par file could not be read to its end and is to be saved again.
/// transfert: the words of the dialogs that transfer, which differ from those of the menu.
void MessageParErrone(bool transfert);
