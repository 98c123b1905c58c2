#pragma once

#include <QProxyStyle>

/// The desktop's own style, with two differences. On a dark theme the outline of check boxes and radio buttons is
/// light: the style Fusion draws it darker than the window, where an empty box can no longer be told from its
/// background. And on a desktop without pictures for message boxes theirs are drawn: the toolkit's are rasters, coarse
/// on a fine screen.
class StyleContraste : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                       const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap genre, const QStyleOption *option, const QWidget *widget) const override;
};
