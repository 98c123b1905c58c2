#include "platform/dialogues/DialogueCentre.h"

#include "platform/dialogues/CentreFeuille.h"

#include <QShowEvent>

void DialogueCentre::showEvent(QShowEvent *evenement)
{
    QDialog::showEvent(evenement);
    if (!evenement->spontaneous()) // spontaneous: a minimised window that comes back
        CentreFeuille(this);
}
