#pragma once

class QObject;

/// As long as proprietaire lives, the mouse wheel does nothing on a list or number box without the focus: an operator
/// who scrolls over a window must not change a setting by accident.
void BrancheMolette(QObject *proprietaire);
