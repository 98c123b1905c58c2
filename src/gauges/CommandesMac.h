#pragma once

// The commands through which the operator reaches the machine configurations.

void Mn_CreeConfMac();  ///< a new configuration, from the ordinary values
void Mn_ModifConfMac(); ///< one from a file
