#pragma once

#include <QString>

// The commands through which the operator reaches the machine configurations.

void Mn_CreeConfMac();  ///< a new configuration, from the ordinary values
void Mn_ModifConfMac(); ///< one from a file

/// The one from the file chemin. It came without the menu, so when it is no machine configuration the operator is told.
void ModifieConfMac(const QString &chemin);
