#include "gauges/Virgule.h"

#include "platform/controles/FiltreTouches.h"
#include "platform/dialogues/Boites.h"

#include <QWidget>

bool RefuseVirgule(QWidget *fenetre)
{
    const QString avis = RetientVirgule(fenetre);
    if (!avis.isEmpty())
        MsgBox(avis, Boite::Exclamation, fenetre->windowTitle());
    return !avis.isEmpty();
}
