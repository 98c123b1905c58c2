#pragma once

class VueTransfert;

/// Receives a file until its end. While this routine waits, the receive events gather the text in Text2, whatever its
/// lines and its length; SeuilRecep has to be above 0 for that. At the end-of-transfer string, or at the operator's
/// forced end, it sends that string back, closes the port and writes the file CheminRecep(). The text then stands in
/// the program pane. A cancelled reception drops what had come. A failure ends in ErreurPortCOM(), and the operator may
/// then save what had come.
///
/// vue: what shows the transfer; it has to live until the routine returns.
void ReceptionFichier(VueTransfert &vue);

/// Called at a receive event. Gathers all that arrives until the end-of-transfer string, a forced end or a cancel. It
/// does nothing unless ReceptionFichier() waits, or while it already runs further down the stack. After the
/// end-of-transfer string it does nothing either: what a machine sends then is no part of the file.
void RecolteFichier();
