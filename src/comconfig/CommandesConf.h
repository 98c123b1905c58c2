#pragma once

#include "comconfig/TextesConf.h"

#include <QString>

#include <functional>

// The commands through which the operator reaches the communication configuration.

/// Loads the .par file fichier as the current configuration at the start; "" loads nothing. A missing file is told to
/// the operator. Raises what LireFichierPar raises, with the transfer commands still disabled.
void ConfDefaut(const QString &fichier);

/// Asks the operator for a .par file, first in dossier, and gives its full path. filtre: "label|pattern" of the dialog.
/// Raises DialogueAnnule.
QString ChoisitFichierPar(const QString &dossier, const Texte3 &filtre = FiltrePar);

/// Asks the operator for a .par file and makes it the current configuration.
void Mnu_ChargeConf();

/// Makes the .par file fichier the current configuration; a file that cannot be read is told as Mnu_ChargeConf() does.
void ChargeConf(const QString &fichier);

/// Makes a new configuration, in the record only, and opens the properties dialog on it.
void Mnu_CreConf();

/// Asks the operator for a .par file, makes it the current configuration and opens the properties dialog on it.
void Mnu_ModifConf();

/// Opens the properties dialog on its folders and editor, and nothing else of it.
void Mnu_DosRecep();

/// Mnu_ChargeConf() from inside a dialog that transfers, without touching the menus. montre: shows the new
/// configuration in that dialog, once it is in force.
void ChargeAutreConfiguration(const std::function<void()> &montre);

/// The current configuration as the dialogs that transfer name it: its file, two blanks, its comment.
QString ConfigurationEnClair();
