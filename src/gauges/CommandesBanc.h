#pragma once

/// Asks for the machine configuration (.mac), then for the gauge file, and takes the measures of the presetting bench.
/// Without a configuration that can be read the command ends, and nothing is said.
void Mnu_RecepBanc();
