#pragma once

#include "locale/Langue.h"

class QWidget;

/// Shown beside a box in mm in which a comma was typed.
inline constexpr Texte3 VirguleRefusee{u"Les décimales s'écrivent derrière un point : 0.4",
                                       u"Decimals are written behind a point: 0.4",
                                       u"Los decimales se escriben detrás de un punto: 0.4"};

/// True when a number in fenetre is still without the comma that was typed in it (see RetientVirgule). The operator has
/// then been told by a message box, and the numbers must not be used.
bool RefuseVirgule(QWidget *fenetre);
