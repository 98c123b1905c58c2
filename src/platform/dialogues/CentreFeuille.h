#pragma once

class QWidget;

/// Puts a window in the middle of the screen that it is on.
void CentreFeuille(QWidget *fenetre);
