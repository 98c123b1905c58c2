#include "platform/controles/StyleContraste.h"

#include "platform/controles/Icone.h"

#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr std::pair<QStyle::StandardPixmap, const char *> Dessins[] = {
    {QStyle::SP_MessageBoxCritical, ":/boites/Critique"},
    {QStyle::SP_MessageBoxWarning, ":/boites/Exclamation"},
    {QStyle::SP_MessageBoxInformation, ":/boites/Information"},
    {QStyle::SP_MessageBoxQuestion, ":/boites/Question"}};

bool EstSombre(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// True when the control has the focus and the operator works with the keyboard.
bool AFoyer(const QStyleOption &option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void DessineFoyer(QPainter &peintre, const QRect &place, const QPalette &palette)
{
    constexpr double rayon = 2;
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(palette.color(QPalette::WindowText));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), rayon, rayon);
    peintre.restore();
}

/// True for Qt's own picture, which is small. A desktop's icon has larger sizes too.
bool EstGrossier(const QIcon &icone)
{
    constexpr int raster = 32; // pixels
    const QList<QSize> tailles = icone.availableSizes();
    return std::all_of(tailles.begin(), tailles.end(), [](QSize taille) { return taille.width() <= raster; });
}

} // namespace

/// The pictures are resources of a static library: without this call the linker would omit them.
static void PrendDessins()
{
    Q_INIT_RESOURCE(boites);
}

void StyleContraste::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *peintre,
                                   const QWidget *widget) const
{
    if (element == PE_FrameFocusRect && EstSombre(option->palette)) {
        if (option->state.testFlag(State_KeyboardFocusChange))
            DessineFoyer(*peintre, option->rect, option->palette);
        return;
    }
    const auto *const bouton = qstyleoption_cast<const QStyleOptionButton *>(option);
    const bool indicateur = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (bouton == nullptr || !indicateur || !EstSombre(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
        return;
    }
    QStyleOptionButton clair(*bouton);
    clair.palette.setColor(QPalette::Window,
                           option->palette.color(QPalette::WindowText)); // the outline is derived from it
    clair.state.setFlag(State_HasFocus, false);                          // or, with the focus, from the highlight
    QProxyStyle::drawPrimitive(element, &clair, peintre, widget);
}

void StyleContraste::drawControl(ControlElement element, const QStyleOption *option, QPainter *peintre,
                                 const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, peintre, widget);
    const bool muet = element == CE_PushButton ? baseStyle()->name() == QLatin1String("fusion")
                                               : element == CE_TabBarTabLabel && EstSombre(option->palette);
    if (muet && AFoyer(*option))
        DessineFoyer(*peintre, option->rect.adjusted(3, 3, -3, -3), option->palette);
}

void StyleContraste::drawComplexControl(ComplexControl controle, const QStyleOptionComplex *option, QPainter *peintre,
                                        const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(controle, option, peintre, widget);
    const auto *const liste = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (controle == CC_ComboBox && liste != nullptr && !liste->editable && AFoyer(*option) &&
        EstSombre(option->palette))
        DessineFoyer(*peintre, option->rect.adjusted(3, 3, -3, -3), option->palette);
}

QIcon StyleContraste::standardIcon(StandardPixmap genre, const QStyleOption *option, const QWidget *widget) const
{
    QIcon icone = QProxyStyle::standardIcon(genre, option, widget);
    const auto *const dessin =
        std::find_if(std::begin(Dessins), std::end(Dessins), [genre](const auto &d) { return d.first == genre; });
    if (dessin == std::end(Dessins) || !EstGrossier(icone))
        return icone;
    PrendDessins();
    return Icone(QLatin1String(dessin->second));
}
