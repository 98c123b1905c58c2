#pragma once

#include "platform/serie/ReglagePort.h"

// The settings of a terminal. This unit stands apart because only the kernel's termios2 structure holds any speed, and
// its header conflicts with the C library's <termios.h>.

/// Makes the terminal raw and lifts an XOFF that an earlier use left behind.
/// Returns 0 or the system's error: ENOTTY when fd is no terminal.
int PrepareTerminal(int fd);

/// Sets line and flow control, and marks characters that come with an error (see DecodeurMarques.h).
/// verifie: whether a setting that the driver silently ignored is a failure.
/// Raises ErreurPort::Vitesse, BitsDonnees or Reglage; the old settings are then restored.
void RegleTerminal(int fd, const ReglagePort &reglage, bool verifie);

/// Throw away the characters received and not read, or those written and not sent.
void JetteEntree(int fd);
void JetteSortie(int fd);
