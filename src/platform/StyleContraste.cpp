#include "platform/StyleContraste.h"

#include <QStyleOptionButton>

namespace {

bool EstSombre(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

void StyleContraste::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                                   const QWidget *widget) const
{
    const auto *const bouton = qstyleoption_cast<const QStyleOptionButton *>(option);
    const bool indicateur = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (bouton == nullptr || !indicateur || !EstSombre(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
        return;
    }
    QStyleOptionButton clair(*bouton);
    clair.palette.setColor(QPalette::Window, option->palette.color(QPalette::WindowText)); // the outline comes from it
    QProxyStyle::drawPrimitive(element, &clair, peintre, widget);
}
