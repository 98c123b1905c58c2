#pragma once

#include "platform/serie/ReglagePort.h"

#include <optional>

/// The settings that a driver gets in one call.
struct DemandeLigne
{
    ReglagePort reglage;
    bool rts = false; ///< state of RTS, unless RTS/CTS drives it
    bool dtr = false;
    std::optional<char> remplacant; ///< replaces a character with a parity error; without it the character stays

    bool operator==(const DemandeLigne &) const = default;
};

/// Makes an open device a raw line without flow control, and empties its queues. A read then ends when all its
/// characters have come. Returns 0, or the system's error when the device is not a serial line.
int PreparePort(void *port);

/// Sets the line. Raises ErreurPort::Vitesse, BitsDonnees or Reglage when the driver refuses; the former settings are
/// then restored.
void ReglePort(void *port, const DemandeLigne &demande);
