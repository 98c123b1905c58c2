#include "platform/LabelElide.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

LabelElide::LabelElide(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize LabelElide::minimumSizeHint() const
{
    constexpr int caracteres = 4; // what it shrinks to, the ellipsis with it
    return {caracteres * fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

QString LabelElide::Montre() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool LabelElide::event(QEvent *evenement)
{
    if (evenement->type() != QEvent::ToolTip)
        return QLabel::event(evenement);
    QToolTip::showText(static_cast<QHelpEvent *>(evenement)->globalPos(), Montre() == text() ? QString() : text(),
                       this);
    return true;
}

void LabelElide::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    const Qt::Alignment cote = QStyle::visualAlignment(layoutDirection(), alignment());
    peintre.drawItemText(contentsRect(), static_cast<int>(cote), palette(), isEnabled(), Montre(), foregroundRole());
}
