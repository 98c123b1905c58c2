#pragma once

#include <QString>

// The file that a reception leaves, and its way into the program pane.

/// Makes the received file the document. One of 65536 bytes or more is not shown: the pane empties and the operator may
/// open it with the word processor. A file that cannot be read leaves the pane as it was.
void OuvreFichierRecu();

/// A reception has failed: offers to save what had come, again and again until it is written or given up. An empty
/// texte asks nothing.
void SauveAilleurs(const QString &texte);
