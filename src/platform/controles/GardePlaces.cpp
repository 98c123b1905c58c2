#include "platform/controles/GardePlaces.h"

#include <QWidget>

void GardePlaces(std::initializer_list<QWidget *> controles)
{
    for (QWidget *const controle : controles) {
        QSizePolicy place = controle->sizePolicy();
        place.setRetainSizeWhenHidden(true);
        controle->setSizePolicy(place);
    }
}
