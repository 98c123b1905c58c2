#pragma once

#include <QtGlobal>

class QString;
class VueTransfert;

// The two ways of sending the text of the program pane. Each opens the port, sends the beginning of program, the text
// and the end of transfer, waits until all of it has left, and closes the port. Only the transmit buffer sets the pace:
// while the machine holds the line they wait, however long. They run inside the click on the dialog's button. While
// they wait, its other buttons work. A failure ends in ErreurPortCOM().
//
// vue: what shows the transfer; it has to live until the routine returns.

/// Sends the text as it stands, in blocks of the transmit buffer's size.
void EnvoiFich_FinFich(VueTransfert &vue);

/// Sends the text line by line, with ChaineFinLig behind each line. A line keeps its own CR before that; its LF is not
/// sent.
void EnvoiFich_Lig_Lig(VueTransfert &vue);

/// How many of the lines of a text EnvoiFich_Lig_Lig() sends, as an operator counts them.
struct LignesEnvoyees
{
    qint64 nombre;
    qint64 total;
    bool Toutes() const { return nombre == total; }
};

/// A text with more lines than the table takes leaves the table's count as it was: that many lines would be sent.
LignesEnvoyees CompteLignesEnvoyees(const QString &texte);
