#pragma once

/// The serial control's one event: shows what happens on the line in Etat, empties the receive buffer when the system
/// has lost characters, and gathers a file that is being received (RecolteFichier). During a bench reception it does
/// nothing.
void MSComm1_OnComm();
