#include "platform/base/Journal.h"

// Only fatal messages pass at this level: both categories are off unless a rule switches them on.
Q_LOGGING_CATEGORY(JournalLigne, "dorvanel.ligne", QtFatalMsg)
Q_LOGGING_CATEGORY(JournalFichiers, "dorvanel.fichiers", QtFatalMsg)
