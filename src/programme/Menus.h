#pragma once

/// Ties everything that the operator or the machine does to the routine that serves it: menu entries and toolbar
/// buttons, the program pane, the explorer column, the events of the line, a dropped file, the closing. Once, when the
/// main window exists.
void Branche();
