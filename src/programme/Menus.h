#pragma once

/// Connects everything that the operator or the machine does with the routine that handles it: menu entries, toolbar
/// buttons, program pane, explorer column, events of the line, a dropped file, the closing of the window. Once, when
/// the main window exists.
void Branche();
