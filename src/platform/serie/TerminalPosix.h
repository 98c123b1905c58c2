#pragma once

#include "platform/serie/ReglagePort.h"

// The settings of a terminal. They stand in a unit of their own because the one structure that holds any speed is the
// kernel's, which does not go together with the C library's <termios.h>.

/// Makes the terminal raw and lifts an XOFF that an earlier use left behind.
/// Returns 0 or the system's error: ENOTTY when fd is no terminal.
int PrepareTerminal(int fd);

/// Sets line and flow control, and marks characters that come with an error (see DecodeurMarques.h).
/// verifie: take what the driver has dropped for a failure.
/// Raises ErreurPort::Vitesse, BitsDonnees or Reglage, after the former settings have been put back.
void RegleTerminal(int fd, const ReglagePort &reglage, bool verifie);

/// Throw away what was received and not read, or what was written and not sent.
void JetteEntree(int fd);
void JetteSortie(int fd);
