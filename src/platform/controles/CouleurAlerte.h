#pragma once

#include <QColor>

/// The colour of a text that warns, readable on the ground of this desktop's windows, light or dark.
QColor CouleurAlerte();
