#pragma once

class QWidget;

/// The window that owns the next dialog: the modal one that is open, else the one with the focus, else, while another
/// program has it, any that is shown. nullptr before the first window. A dialog without an owner could disappear behind
/// the window that it blocks.
QWidget *FenetreAppelante();
