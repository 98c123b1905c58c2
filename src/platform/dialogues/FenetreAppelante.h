#pragma once

class QObject;
class QWidget;

/// The window to own the next dialog, since a dialog without an owner could disappear behind the window that it blocks.
/// It is the modal window that is open, else the active one, else (another program is active) any window that is shown.
/// nullptr before the first window.
QWidget *FenetreAppelante();

/// Gives the keyboard back when a modal dialog closes: to the modal dialog that is left, or else to the window that
/// owned the closed one. Works as long as proprietaire lives. Some window managers give the keyboard to no window when
/// a box and the dialog below it close at the same moment. While another program is active nothing is changed.
void RendLeClavier(QObject *proprietaire);
