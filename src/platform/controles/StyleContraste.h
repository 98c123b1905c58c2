#pragma once

#include <QProxyStyle>

/// The desktop's own style, with three differences.
/// - On a dark theme check boxes and radio buttons have a light outline. Fusion draws it darker than the window, so
/// that an empty box cannot be seen.
/// - On a dark theme a light frame shows which control has the focus, which Fusion hardly marks. With Fusion, push
/// buttons have this frame on every theme, since its default button always looks as if it had the focus.
/// - On a desktop without icons for message boxes the program's own drawings are used: Qt's are small pixel images,
/// coarse on a fine screen.
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
