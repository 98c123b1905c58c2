#pragma once

class QWidget;

/// Makes the Tab key enter each group of radio buttons in fenetre at the chosen one, or at the first when none is
/// chosen. Qt always enters at the first one, and an arrow key would then choose its neighbour, whatever was chosen
/// before.
void EntreAuChoix(QWidget *fenetre);
