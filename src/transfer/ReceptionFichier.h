#pragma once

class VueTransfert;

/// Reception of a file until its end: while this routine waits, the receive events gather the text in Text2, without
/// lines or limit (SeuilRecep has to be above 0). At the end-of-transfer string, or at the operator's forced end, it
/// sends that string back, closes the port and writes the file CheminRecep(); the text then stands in the program pane.
/// Cancelled, it drops what had come. A failure ends in ErreurPortCOM, and the operator may then save what had come.
///
/// vue: the controls that show the transfer; they have to live until the routine returns.
void ReceptionFichier(VueTransfert &vue);

/// A receive event has come: gathers all that arrives until the end-of-transfer string, a forced end or a cancel, and
/// returns. It does nothing unless ReceptionFichier() waits, nor while it is already gathering further down the stack,
/// nor behind the end: what a machine sends after its end-of-transfer string is no part of the file.
void RecolteFichier();
