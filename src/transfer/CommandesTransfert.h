#pragma once

// The menu commands that start a transfer. A sending asks for confirmation and opens the transfer dialog. A reception
// first asks for the file, the folder and the line end.

void Mnu_EmisProgCN(); ///< sends the program in the pane
void Mnu_EmisJauge();  ///< sends the gauge file in the pane
void Mnu_RecepProg();  ///< receives a program
void Mnu_RecepJauge(); ///< receives a gauge file
