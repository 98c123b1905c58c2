#include "platform/StyleContraste.h"

#include "platform/Icone.h"

#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr std::pair<QStyle::StandardPixmap, const char *> Dessins[] = {
    {QStyle::SP_MessageBoxCritical, ":/boites/Critique.svg"},
    {QStyle::SP_MessageBoxWarning, ":/boites/Exclamation.svg"},
    {QStyle::SP_MessageBoxInformation, ":/boites/Information.svg"},
    {QStyle::SP_MessageBoxQuestion, ":/boites/Question.svg"}};

bool EstSombre(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// True for the toolkit's own picture: a desktop's comes in larger sizes too.
bool EstGrossier(const QIcon &icone)
{
    constexpr int raster = 32; // pixels
    const QList<QSize> tailles = icone.availableSizes();
    return std::all_of(tailles.begin(), tailles.end(), [](QSize taille) { return taille.width() <= raster; });
}

} // namespace

/// The pictures lie in a library, and the linker would leave them there.
static void PrendDessins()
{
    Q_INIT_RESOURCE(boites);
}

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

QIcon StyleContraste::standardIcon(StandardPixmap genre, const QStyleOption *option, const QWidget *widget) const
{
    const QIcon icone = QProxyStyle::standardIcon(genre, option, widget);
    const auto *const dessin =
        std::find_if(std::begin(Dessins), std::end(Dessins), [genre](const auto &d) { return d.first == genre; });
    if (dessin == std::end(Dessins) || !EstGrossier(icone))
        return icone;
    PrendDessins();
    return Icone(QLatin1String(dessin->second));
}
