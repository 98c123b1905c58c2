#pragma once

#include <QLoggingCategory>

// Logging for whoever looks for the cause of a fault. Both categories are off until a rule switches them on, such as
// QT_LOGGING_RULES="dorvanel.*=true". They contain names, numbers and counts, never the text of a program or a measure.

/// "dorvanel.ligne": openings, settings, holds, events, errors and counts of the serial line.
Q_DECLARE_LOGGING_CATEGORY(JournalLigne)

/// "dorvanel.fichiers": files and folders read, written, made, renamed or deleted, and failures.
Q_DECLARE_LOGGING_CATEGORY(JournalFichiers)
