#pragma once

#include <QString>

/// Which device of this PC a port number stands for, and whether it is there, for the operator who chooses a port.
/// numPort: 1 to 16.
QString DecritPort(int numPort);
