#pragma once

#include <QString>

class QObject;

/// texte with each line end replaced by a blank.
QString SurUneLigne(QString texte);

/// As long as proprietaire lives, line ends that enter a one-line text box by paste, drop or input method become
/// blanks. In a box for one character they are removed. If the box's own validator refuses the result, blanks at both
/// ends are removed, so that a number copied together with its line end is still accepted.
void TientUneLigne(QObject *proprietaire);
