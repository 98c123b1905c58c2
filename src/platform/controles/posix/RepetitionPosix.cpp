#include "platform/controles/Repetition.h"

#include <QKeyEvent>

void GuetteRepetitions() {}

bool EstRepetition(const QKeyEvent &touche)
{
    return touche.isAutoRepeat();
}
