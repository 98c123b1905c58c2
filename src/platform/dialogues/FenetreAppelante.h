#pragma once

class QObject;
class QWidget;

/// The window that owns the next dialog: the modal one that is open, else the one with the focus, else, while another
/// program has it, any that is shown. nullptr before the first window. A dialog without an owner could disappear behind
/// the window that it blocks.
QWidget *FenetreAppelante();

/// Has the keyboard come back, as long as proprietaire lives, from each modal dialog that closes to the one that is
/// left, or to the window that it belonged to. Where a box and the dialog below it close in the same moment, a window
/// manager may hand it to the dialog that is going, and then to nobody. While the operator works in another program it
/// stays there.
void RendLeClavier(QObject *proprietaire);
