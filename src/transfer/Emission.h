#pragma once

#include <QtGlobal>

class QString;
class VueTransfert;

// The two ways of sending the text of the program pane. Each opens the port, sends the beginning of program, the text
// and the end of transfer, waits until all of it has gone, and closes the port. Their one pace is the transmit buffer:
// while the machine holds the line they wait, however long. They run inside the dialog's button; in their waits its
// other buttons run. A failure ends in ErreurPortCOM.
//
// vue: the controls that show the transfer; they have to live until the routine returns.

/// Sends the text as it stands, in blocks of the transmit buffer's size.
void EnvoiFich_FinFich(VueTransfert &vue);

/// Sends the text line by line, each line closed by ChaineFinLig. A line keeps its own CR ahead of that; its LF does
/// not go out.
void EnvoiFich_Lig_Lig(VueTransfert &vue);

/// How many lines of a text EnvoiFich_Lig_Lig() sends, of how many; the empty one behind a last line end counts.
struct LignesEnvoyees
{
    qint64 nombre;
    qint64 total;
    bool Toutes() const { return nombre == total; }
};

/// Of a text with more lines than the table takes, it sends as many as the table held before.
LignesEnvoyees CompteLignesEnvoyees(const QString &texte);
