#pragma once

#include <Qt>

/// Whether the case of letters matters in paths of this system. Each system has its own unit for this.
Qt::CaseSensitivity CasseDesChemins();
