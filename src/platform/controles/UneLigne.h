#pragma once

#include <QString>

class QObject;

/// texte with a blank in the place of each line end.
QString SurUneLigne(QString texte);

/// From now on, and as long as proprietaire lives, every one-line text box of the program keeps to one line, whatever a
/// paste, a drop or an input method brings: a line end becomes a blank. A box that holds one character takes none, and
/// where the box has a rule of its own that takes no blank, those at the two ends go: a number copied with the end of
/// its line is still that number.
void TientUneLigne(QObject *proprietaire);
