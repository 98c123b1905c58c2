#pragma once

class QObject;
class QWidget;

// What the keyboard does alike in every window, the toolkit's own dialogs among them:
//
// - Enter presses the button of a dialog that has the keyboard. Where none has it, it presses the default one.
// - Enter, Escape and the space bar press once in a dialog, however long they are held down.
// - A dialog that comes up or to the front over a key held down, or less than 400 ms after a stroke, takes no key for
//   another 400 ms, and until it is released and pressed anew none that is still held down: the operator has not read
//   it yet. What he types into a text box goes through. The main window keeps Enter out of its text in the same way.
//
// The mouse is never held back, and a click into a window ends the wait.

/// Has all windows keep these rules as long as proprietaire lives.
void BrancheClavier(QObject *proprietaire);

/// The third rule for a window that is in front and has just changed under the operator's hands.
void RetientTouches(QWidget *fenetre);
