#pragma once

#include <QString>

/// Text for the operator who chooses a port: the device of this PC that stands behind a port number, and whether it is
/// there. numPort: 1 to 16.
QString DecritPort(int numPort);
