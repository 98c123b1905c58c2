#include "platform/texte/TouchesVolet.h"

#include "platform/base/Touches.h"

#include <algorithm>
#include <array>

bool EstRaccourciDuMenu(const QKeyEvent &touche)
{
    if (EstAvec(touche, Qt::AltModifier))
        return !touche.text().isEmpty() && touche.text().front().isPrint();
    constexpr std::array DuVolet{Qt::Key_A, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z};
    const bool lettre = touche.key() >= Qt::Key_A && touche.key() <= Qt::Key_Z;
    return EstAvec(touche, Qt::ControlModifier) && lettre &&
           std::find(DuVolet.begin(), DuVolet.end(), touche.key()) == DuVolet.end();
}
