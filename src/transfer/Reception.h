#pragma once

class VueTransfert;

// The two ways of receiving that fill the line table. Each opens the port, takes what the machine sends until the
// end-of-transfer string or the operator's forced end, sends that string back, closes the port, and writes the file
// CheminRecep(), which then stands in the program pane. A cancelled reception stores and sends nothing. While they
// wait, the buttons of the dialog work. A failure ends in ErreurPortCOM(), and the operator may then save what had
// come.
//
// vue: what shows the transfer; it has to live until the routine returns.

/// Receives character by character; TypeFinLig says what ends a line. What the port holds when a line ends is dropped.
void ReceptionCar(VueTransfert &vue);

/// Receives by line: all that was read so far is a line once it ends with ChaineFinLig, which ChaineFinLigRecep
/// replaces. What the port holds when a line ends is dropped.
void ReceptionLigne(VueTransfert &vue);
