#pragma once

// Printing the program, and the choice of the printer.

/// Prints the whole text in the look that it has at the insertion point, under a heading with the file's name, as many
/// times as the operator wants, each copy a job of its own. Cancelling and a failure end it without a message.
void Mnu_Imprim();

void Mnu_ConfigIMP(); ///< asks for printer and paper
