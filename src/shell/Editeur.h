#pragma once

/// Opens the document's file with the editor EditeurCN and does not wait for it; the pane keeps its text. An editor
/// named as a word processor of the system is that word processor, wherever it is said to lie. The operator is told
/// when it cannot be started.
void Mnu_EditProg();
