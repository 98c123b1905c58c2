#pragma once

#include "platform/serie/LigneSerie.h"

#include <chrono>

/// Counts of a port since they were last reset: characters in both directions, and errors.
struct ComptesPort
{
    qint64 emis = 0;                            ///< characters that have left the control's queue for the line
    qint64 recus = 0;                           ///< characters received, including those thrown away unread
    std::chrono::milliseconds dureeReception{}; ///< from the first character received to the last
    CompteursLigne fautes;                      ///< line errors alone, as the driver counts them
};
