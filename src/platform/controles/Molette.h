#pragma once

class QObject;

/// As long as proprietaire lives, the mouse wheel changes no list and no number that has not the keyboard: whoever
/// scrolls over a window must not change a setting on his way. There the wheel does nothing at all.
void BrancheMolette(QObject *proprietaire);
