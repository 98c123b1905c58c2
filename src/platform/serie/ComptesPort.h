#pragma once

#include "platform/serie/LigneSerie.h"

#include <chrono>

/// What has passed over a port, and what went wrong there, since the counts were last set to zero.
struct ComptesPort
{
    qint64 emis = 0;                            ///< characters that have left the control's queue for the line
    qint64 recus = 0;                           ///< characters received, those among them that were thrown away unread
    std::chrono::milliseconds dureeReception{}; ///< between the first and the last of these
    CompteursLigne fautes;                      ///< line errors alone, as the driver counts them
};
