#include "platform/dialogues/CentreFeuille.h"

#include <QScreen>
#include <QWidget>

void CentreFeuille(QWidget *fenetre)
{
    QRect cadre = fenetre->frameGeometry();
    cadre.moveCenter(fenetre->screen()->geometry().center());
    fenetre->move(cadre.topLeft());
}
