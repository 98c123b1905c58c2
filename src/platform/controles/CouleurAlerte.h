#pragma once

#include <QColor>

/// The colour of a warning text, readable on the window background of this desktop, light or dark.
QColor CouleurAlerte();
