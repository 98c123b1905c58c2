#include "platform/controles/LabelElide.h"

#include "platform/controles/CouleurAlerte.h"
#include "platform/controles/UneLigne.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QTextDocument>
#include <QToolTip>

namespace {

constexpr qsizetype Place = 2000; // characters; no line shows as many, and a longer tool tip would cover the screen

} // namespace

LabelElide::LabelElide(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void LabelElide::Avertit(const QString &raison)
{
    m_raison = raison;
    setAccessibleDescription(raison);
    QPalette couleurs;
    if (!raison.isEmpty())
        couleurs.setColor(QPalette::WindowText, CouleurAlerte());
    setPalette(couleurs);
}

QSize LabelElide::sizeHint() const
{
    return UneLigneDe(fontMetrics().horizontalAdvance(Ligne()) + 1); // the width may be rounded down
}

QSize LabelElide::minimumSizeHint() const
{
    constexpr int caracteres = 4; // narrowest width, with the ellipsis
    return UneLigneDe(caracteres * fontMetrics().averageCharWidth());
}

QSize LabelElide::UneLigneDe(int largeur) const
{
    return QSize(largeur, fontMetrics().height()).grownBy(contentsMargins());
}

QString LabelElide::Ligne() const
{
    return SurUneLigne(text().left(Place));
}

QString LabelElide::Montre() const
{
    return fontMetrics().elidedText(Ligne(), Qt::ElideRight, contentsRect().width());
}

bool LabelElide::event(QEvent *evenement)
{
    if (evenement->type() != QEvent::ToolTip)
        return QLabel::event(evenement);
    // As rich text the tool tip wraps; as plain text it would be one line wider than the screen.
    QStringList bulle;
    if (Montre() != Ligne())
        bulle << (text().size() > Place ? text().left(Place) + u'\u2026' : text());
    if (!m_raison.isEmpty())
        bulle << m_raison;
    const QString lignes =
        bulle.isEmpty() ? QString() : Qt::convertFromPlainText(bulle.join(u'\n'), Qt::WhiteSpaceNormal);
    QToolTip::showText(static_cast<QHelpEvent *>(evenement)->globalPos(), lignes, this);
    return true;
}

void LabelElide::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    const Qt::Alignment cote = QStyle::visualAlignment(layoutDirection(), alignment());
    peintre.drawItemText(contentsRect(), static_cast<int>(cote), palette(), isEnabled(), Montre(), foregroundRole());
}
