#pragma once

#include <QLoggingCategory>

// What happened on the line and with the files, for whoever looks for the cause of a fault. Both are off until they are
// switched on, as with QT_LOGGING_RULES="dorvanel.*=true". They hold names, numbers and counts; what a program or a
// measure says stays out.

/// "dorvanel.ligne": openings, settings, holds, events, errors and counts of the serial line.
Q_DECLARE_LOGGING_CATEGORY(JournalLigne)

/// "dorvanel.fichiers": files and folders that are read, written, made, renamed or deleted, and failures.
Q_DECLARE_LOGGING_CATEGORY(JournalFichiers)
