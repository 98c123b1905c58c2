#pragma once

/// Asks for the machine configuration (.mac), then for the gauge file, and takes the measures of the presetting bench.
/// If no configuration is chosen, or if it cannot be read, the command ends without a message.
void Mnu_RecepBanc();
