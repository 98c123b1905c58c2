#pragma once

#include "comconfig/TextesConf.h"

#include <QString>

#include <functional>

// The commands of the operator for the communication configuration.

/// Loads the .par file fichier as the current configuration, at the start; "" loads nothing. The operator is told when
/// the file is missing. Raises what LireFichierPar raises; the transfer commands are then still disabled.
void ConfDefaut(const QString &fichier);

/// Asks the operator for a .par file and gives its full path. dossier: folder first shown; filtre: "label|pattern" of
/// the dialog. Raises DialogueAnnule when he cancels.
QString ChoisitFichierPar(const QString &dossier, const Texte3 &filtre = FiltrePar);

/// Asks the operator for a .par file and makes it the current configuration.
void Mnu_ChargeConf();

/// Makes the .par file fichier the current configuration. Tells the operator when it cannot be read, as
/// Mnu_ChargeConf() does.
void ChargeConf(const QString &fichier);

/// Makes a new configuration, without a file, and opens the properties dialog on it.
void Mnu_CreConf();

/// Asks the operator for a .par file, makes it the current configuration and opens the properties dialog on it.
void Mnu_ModifConf();

/// Opens the properties dialog limited to the reception folders and the editor.
void Mnu_DosRecep();

/// Mnu_ChargeConf() for a transfer dialog: the menus stay as they are. montre: called when the new configuration is in
/// force, to show it in that dialog.
void ChargeAutreConfiguration(const std::function<void()> &montre);

/// The current configuration as the transfer dialogs show it: its file, two blanks, its comment.
QString ConfigurationEnClair();
