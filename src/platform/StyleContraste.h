#pragma once

#include <QProxyStyle>

/// The desktop's own style, with one difference: on a dark theme the outline of check boxes and radio buttons is light.
/// The style Fusion draws it darker than the window, where an empty box can no longer be told from its background.
class StyleContraste : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                       const QWidget *widget) const override;
};
