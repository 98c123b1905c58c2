#pragma once

class QWidget;

/// Has the tabulator enter each group of options of a window at the one that is chosen, from where the arrows then go
/// on. The toolkit enters at the first one, and an arrow would choose its neighbour whatever was chosen before. A group
/// of which none is chosen is entered at the first.
void EntreAuChoix(QWidget *fenetre);
