#include "platform/controles/CaseLongue.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int LargeurUsuelle = 30; // preferred width of a line, in average characters

} // namespace

CaseLongue::CaseLongue(QWidget *parent)
    : QCheckBox(parent)
{
    QSizePolicy politique(QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::CheckBox);
    politique.setHeightForWidth(true);
    setSizePolicy(politique);
}

QSize CaseLongue::sizeHint() const
{
    const int largeur = Retrait() + LargeurUsuelle * fontMetrics().averageCharWidth();
    return {largeur, heightForWidth(largeur)};
}

QSize CaseLongue::minimumSizeHint() const
{
    return {Retrait() + LargeurUsuelle / 2 * fontMetrics().averageCharWidth(), Case().height()};
}

int CaseLongue::heightForWidth(int largeur) const
{
    const QRect place(0, 0, largeur - Retrait(), QWIDGETSIZE_MAX);
    return qMax(Case().height(), fontMetrics().boundingRect(place, Marques(), text()).height());
}

bool CaseLongue::hitButton(const QPoint &ici) const
{
    return rect().contains(ici);
}

void CaseLongue::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect texte = QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(Retrait(), 0, 0, 0));
    option.rect = QStyle::visualRect(layoutDirection(), rect(), Case());
    peintre.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
    peintre.drawItemText(texte, Marques(), palette(), isEnabled(), text(), QPalette::WindowText);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect cadre;
    cadre.initFrom(this);
    cadre.rect = texte;
    peintre.drawPrimitive(QStyle::PE_FrameFocusRect, cadre);
}

/// The rectangle of the box itself, at the height of the first line.
QRect CaseLongue::Case() const
{
    const QSize taille(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                       style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
    return {QPoint(0, qMax(0, (fontMetrics().height() - taille.height()) / 2)), taille};
}

/// Distance from the left edge to the caption, in pixels.
int CaseLongue::Retrait() const
{
    return Case().width() + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

int CaseLongue::Marques() const
{
    return Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
}
