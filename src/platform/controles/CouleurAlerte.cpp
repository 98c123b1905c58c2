#include "platform/controles/CouleurAlerte.h"

#include <QPalette>

QColor CouleurAlerte()
{
    constexpr QRgb surClair = 0x9a3000;
    constexpr QRgb surSombre = 0xffb870;
    const QPalette palette;
    const bool sombre = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return QColor(sombre ? surSombre : surClair);
}
