#pragma once

#include <QString>

// The commands through which the operator reaches the machine configurations.

void Mn_CreeConfMac();  ///< a new configuration, from the ordinary values
void Mn_ModifConfMac(); ///< one from a file

/// The one from the file chemin; as with the menu, nothing opens when that is no machine configuration.
void ModifieConfMac(const QString &chemin);
