#include "platform/DialogueCentre.h"

#include "platform/CentreFeuille.h"

#include <QShowEvent>

void DialogueCentre::showEvent(QShowEvent *evenement)
{
    QDialog::showEvent(evenement);
    if (!evenement->spontaneous()) // which is a window put away that comes back
        CentreFeuille(this);
}
