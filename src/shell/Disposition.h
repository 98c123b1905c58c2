#pragma once

class FrmPrinc;

// Where the operator has put the main window, how large it is and how wide its explorer column: kept from one run to
// the next where the desktop keeps such things (on Linux $XDG_CONFIG_HOME/Dorvanel/Disposition.conf), apart from the
// program's own settings, which travel with its folder from one PC to another.

/// Puts the window as the last run left it, wholly on a screen that there is now; before the start, which may make the
/// explorer column. Without a last run, with something unreadable or on a much smaller screen the desktop places it as
/// it is made, and no larger than the screen.
void RemetDisposition(FrmPrinc &fenetre);

/// Keeps the window as it is, for the next run.
void GardeDisposition(const FrmPrinc &fenetre);
