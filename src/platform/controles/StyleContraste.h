#pragma once

#include <QProxyStyle>

/// The desktop's own style, with three differences. On a dark theme the outline of check boxes and radio buttons is
/// light: the style Fusion draws it darker than the window, where an empty box can no longer be told from its
/// background. There too a light frame shows where the keyboard is, which Fusion hardly tints; on a button of Fusion's
/// the frame stands on every theme, since its default button always looks as if the keyboard were there. And on a
/// desktop without pictures for message boxes theirs are drawn: the toolkit's are rasters, coarse on a fine screen.
class StyleContraste : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *peintre,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex *option, QPainter *peintre,
                            const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap genre, const QStyleOption *option, const QWidget *widget) const override;
};
