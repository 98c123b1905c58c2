#pragma once

class FrmPrinc;

// Place and size of the main window and width of its explorer column, kept from one run to the next. They are kept by
// the desktop (on Linux in $XDG_CONFIG_HOME/Dorvanel/Disposition.conf) and not with the program's own settings, which
// may travel with their folder to another PC.

/// Gives the window the place of the last run, wholly within a screen that exists now. To be called before Form_Load(),
/// which may make the explorer column. After no last run, or with unreadable values or a much smaller screen, the
/// desktop places the window, and it is no larger than the screen.
void RemetDisposition(FrmPrinc &fenetre);

/// Saves the window's place and the column's width for the next run.
void GardeDisposition(const FrmPrinc &fenetre);
