#include "platform/controles/Lampe.h"

#include <QPainter>

Lampe::Lampe(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Lampe::setFillColor(int couleur)
{
    if (couleur == m_couleur)
        return;
    m_couleur = couleur;
    DitEtat();
    update();
}

void Lampe::setTextes(const QString &nom, const QString &allumee, const QString &eteinte)
{
    // A screen reader speaks each change, so nothing is reported when nothing changes.
    if (nom == accessibleName() && allumee == m_allumee && eteinte == m_eteinte)
        return;
    setAccessibleName(nom);
    m_allumee = allumee;
    m_eteinte = eteinte;
    DitEtat();
}

QSize Lampe::sizeHint() const
{
    const int cote = fontMetrics().height();
    return {cote, cote};
}

void Lampe::paintEvent(QPaintEvent *)
{
    const bool verte = m_couleur == Verte;
    const QColor couleur(m_couleur & 0xFF, (m_couleur >> 8) & 0xFF, (m_couleur >> 16) & 0xFF);
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const double cote = std::min(width(), height());
    const QRectF disque(1.5, 1.5, cote - 3, cote - 3);
    peintre.setPen(QPen(couleur.darker(170), 1.5));
    peintre.setBrush(couleur);
    peintre.drawEllipse(disque);
    // For operators who cannot tell red from green, a lit lamp has a bright spot and an unlit one a bar.
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(Qt::white);
    if (verte)
        peintre.drawEllipse(disque.adjusted(cote * 0.28, cote * 0.28, -cote * 0.28, -cote * 0.28));
    else
        peintre.drawRect(disque.adjusted(cote * 0.18, cote * 0.34, -cote * 0.18, -cote * 0.34));
}

void Lampe::DitEtat()
{
    const QString etat = m_couleur == Verte ? m_allumee : m_eteinte;
    setToolTip(etat);
    setAccessibleDescription(etat);
}
