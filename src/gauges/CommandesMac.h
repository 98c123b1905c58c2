#pragma once

#include <QString>

// The commands through which the operator reaches the machine configurations.

void Mn_CreeConfMac();  ///< edits a new configuration, which begins with the usual values
void Mn_ModifConfMac(); ///< edits one from a file that the operator chooses

/// Edits the one in the file chemin, which the operator has not chosen by the menu. If the file is no machine
/// configuration, he is told.
void ModifieConfMac(const QString &chemin);
