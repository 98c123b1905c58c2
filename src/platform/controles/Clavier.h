#pragma once

class QObject;
class QWidget;

// Rules of the keyboard for every window, Qt's own dialogs included:
//
// - In a dialog Enter presses the button that has the focus, or the default button when none has it.
// - Enter, Escape and the space bar press once in a dialog, however long they are held down.
// - A dialog may come up while a key is held down, or less than 400 ms after a key was pressed. The operator has not
// read it then, so it takes no key for another 400 ms, and a key still held down only after it was released and pressed
// again. Typing into a text box is always possible. The main window keeps Enter out of its text in the same way.
//
// Mouse clicks are never held back; a click into a window ends its wait.

/// Applies these rules to all windows as long as proprietaire lives.
void BrancheClavier(QObject *proprietaire);

/// Applies the third rule to a window in front whose content has just changed.
void RetientTouches(QWidget *fenetre);

/// The same whatever the hands have done: what lay over the window has gone by itself, and the stroke meant for it may
/// still be on its way.
void RetientTouchesSansCoup(QWidget *fenetre);
