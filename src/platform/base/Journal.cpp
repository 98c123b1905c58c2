#include "platform/base/Journal.h"

// A category is on from its level upwards: these are off.
Q_LOGGING_CATEGORY(JournalLigne, "dorvanel.ligne", QtFatalMsg)
Q_LOGGING_CATEGORY(JournalFichiers, "dorvanel.fichiers", QtFatalMsg)
