#include "platform/base/Console.h"

/// Nothing is to be done: every program inherits its terminal.
void RelieConsole() {}
