#pragma once

class VueTransfert;

// The two ways of receiving that fill the line table. Each opens the port, takes what the machine sends until the
// end-of-transfer string or the operator's forced end, sends that string back, closes the port, and writes the file
// CheminRecep(), which then stands in the program pane. A cancelled reception stores and sends nothing. They run inside
// the dialog's activation; in their yields its buttons run. A failure ends in ErreurPortCOM, and the operator may then
// save what had come.
//
// vue: the controls that show the transfer; they have to live until the routine returns.

/// Character by character: lines end by TypeFinLig. What has arrived behind a line end is dropped.
void ReceptionCar(VueTransfert &vue);

/// By line: a line is all that was read when it ends with ChaineFinLig; ChaineFinLigRecep is put behind it. What the
/// port holds beyond it is dropped.
void ReceptionLigne(VueTransfert &vue);
