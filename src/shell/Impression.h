#pragma once

// Printing the program, and the choice of the printer.

/// Prints the whole text under a heading with the file's name, in the font at the insertion point. Each copy that the
/// operator wants is a job of its own. When he cancels, or when printing fails, it ends without a message; only that
/// there is no printer is told.
void Mnu_Imprim();

void Mnu_ConfigIMP(); ///< asks for printer and paper, or tells that there is no printer
