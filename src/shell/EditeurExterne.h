#pragma once

/// Opens the document's file with the editor EditeurCN and does not wait for it; the pane keeps its text. When
/// EditeurCN has the name of a word processor of the system, the system's word processor opens, wherever EditeurCN says
/// that it lies. The operator is told when the editor cannot be started.
void Mnu_EditProg();
