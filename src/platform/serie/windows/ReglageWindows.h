#pragma once

#include "platform/serie/ReglagePort.h"

#include <optional>

/// All that a driver is told at once.
struct DemandeLigne
{
    ReglagePort reglage;
    bool rts = false; ///< state of RTS, where the handshake does not drive it
    bool dtr = false;
    std::optional<char> remplacant; ///< for a character with a parity error; nothing: it stays as it came

    bool operator==(const DemandeLigne &) const = default;
};

/// Makes an open device a raw line, without flow control and with all its queues empty, whose readings end when all
/// their characters have come. Returns 0 or the system's error when the device is no serial line.
int PreparePort(void *port);

/// Sets the line. Raises ErreurPort::Vitesse, BitsDonnees or Reglage, after the former settings have been put back.
void ReglePort(void *port, const DemandeLigne &demande);
