#pragma once

// The menu commands that transfer. Each asks for confirmation and opens the transfer dialog.

void Mnu_EmisProgCN(); ///< sends the program in the pane
void Mnu_EmisJauge();  ///< sends the gauge file in the pane
