#include "gauges/DessinsCadran.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace {

// The mid tones of the icons, which show up on light and dark themes.
constexpr QColor Acier(0xc3, 0xcc, 0xd6);
constexpr QColor Contour(0x6b, 0x7d, 0x90);
constexpr QColor Plaquette(0xeb, 0xa9, 0x37);
constexpr QColor ContourPlaquette(0xb9, 0x79, 0x1a);
constexpr QColor Encre(0x3a, 0x28, 0x00);
constexpr QColor Nez(0xd6, 0x4b, 0x42);
constexpr QColor Axe(0x2f, 0x7f, 0xd1);

QPen Trait(const QColor &couleur, double largeur)
{
    return QPen(couleur, largeur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

/// Where the tool of a locator stands, seen from the crossing of the axes on the back dial: angle in degrees, clockwise
/// from the right.
constexpr double Angles[] = {0, 315, 270, 225, 180, 135, 90, 45, 0};

} // namespace

Tuile::Tuile(QWidget *parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Tuile::sizeHint() const
{
    return QSizeF(Cote, Cote).toSize();
}

void Tuile::paintEvent(QPaintEvent *)
{
    QPainter dessin(this);
    dessin.setRenderHint(QPainter::Antialiasing);
    const bool vive = isChecked() || hasFocus() || underMouse();
    dessin.setPen(Trait(vive ? palette().highlight().color() : Contour, isChecked() ? 3 : 1));
    dessin.setBrush(isDown() ? palette().midlight() : palette().base());
    constexpr double marge = 2;
    constexpr double arrondi = 6;
    dessin.drawRoundedRect(QRectF(rect()).adjusted(marge, marge, -marge, -marge), arrondi, arrondi);
    if (hasFocus()) {
        QStyleOptionFocusRect foyer;
        foyer.initFrom(this);
        foyer.rect = rect().adjusted(5, 5, -5, -5); // inside the outline
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &foyer, &dessin, this);
    }
    dessin.translate(QRectF(rect()).center());
    const double echelle = std::min(width(), height()) / Cote;
    dessin.scale(echelle, echelle);
    Dessine(dessin);
}

void TuilePlaquette::Dessine(QPainter &dessin) const
{
    // A rhombus whose corners are cut back by the radius, which is enlarged so that the eyes see it.
    constexpr QPointF coins[] = {{0, 22}, {-20, 0}, {0, -22}, {20, 0}};
    const double recul = 0.06 + 0.28 * Valeur().toDouble();
    QPainterPath contour;
    for (int i = 0; i < 4; ++i) {
        const QPointF avant = coins[i] + (coins[(i + 3) % 4] - coins[i]) * recul;
        const QPointF apres = coins[i] + (coins[(i + 1) % 4] - coins[i]) * recul;
        i == 0 ? contour.moveTo(avant) : contour.lineTo(avant);
        contour.quadTo(coins[i], apres);
    }
    contour.closeSubpath();
    dessin.setPen(Trait(ContourPlaquette, 1.5));
    dessin.setBrush(Plaquette);
    dessin.drawPath(contour);

    QFont police = font();
    police.setPixelSize(15);
    police.setBold(true);
    dessin.setFont(police);
    dessin.setPen(Encre);
    dessin.drawText(QRectF(-Cote / 2, -Cote / 2, Cote, Cote), Qt::AlignCenter, Valeur());
}

void TuileOutil::Dessine(QPainter &dessin) const
{
    const int localisateur = Valeur().toInt();
    if (localisateur == 0) {
        dessin.setPen(Trait(ContourPlaquette, 1.5));
        dessin.setBrush(Plaquette);
        dessin.drawEllipse(QPointF(), 15, 15);
    } else {
        dessin.rotate(m_avant ? -Angles[localisateur] : Angles[localisateur]);
        dessin.setPen(Trait(Contour, 1.5));
        dessin.setBrush(Acier);
        constexpr QPointF porteOutil[] = {{-8, 0}, {2, -9}, {24, -9}, {24, 9}, {2, 9}};
        dessin.drawPolygon(porteOutil, 5);
        dessin.setPen(Trait(ContourPlaquette, 1.5));
        dessin.setBrush(Plaquette);
        constexpr QPointF plaquette[] = {{-20, 0}, {-7, -8}, {6, 0}, {-7, 8}};
        dessin.drawPolygon(plaquette, 4);
    }
    dessin.setPen(Qt::NoPen);
    dessin.setBrush(Nez);
    dessin.drawEllipse(localisateur == 0 ? QPointF() : QPointF(-19, 0), 3, 3);
}

/// Where the axes cross. The tools of locators 2 and 6 stand on X, those of 4 and 8 on Z.
QPointF Cadran::Croisement() const
{
    QPointF croisement = QRectF(rect()).center();
    const auto tuiles = findChildren<TuileOutil *>();
    for (const TuileOutil *tuile : tuiles) {
        const QPointF centre = QRectF(tuile->geometry()).center();
        if (tuile->Valeur() == QLatin1String("2"))
            croisement.setX(centre.x());
        else if (tuile->Valeur() == QLatin1String("4"))
            croisement.setY(centre.y());
    }
    return croisement;
}

void Cadran::paintEvent(QPaintEvent *)
{
    QPainter dessin(this);
    dessin.setRenderHint(QPainter::Antialiasing);
    dessin.setPen(Trait(Axe, 1.5));
    dessin.setBrush(Axe);
    const QPointF centre = Croisement();
    constexpr double bord = 4;
    constexpr double pointe = 5;

    dessin.drawLine(QPointF(bord, centre.y()), QPointF(width() - bord, centre.y()));
    dessin.drawLine(QPointF(centre.x(), bord), QPointF(centre.x(), height() - bord));
    const QPointF finZ(width() - bord, centre.y());
    const QPointF flecheZ[] = {finZ, finZ + QPointF(-2 * pointe, -pointe), finZ + QPointF(-2 * pointe, pointe)};
    dessin.drawPolygon(flecheZ, 3);
    const double sens = m_avant ? -1 : 1; // of X on the screen
    const QPointF finX(centre.x(), m_avant ? height() - bord : bord);
    const QPointF flecheX[] = {finX, finX + QPointF(-pointe, 2 * pointe * sens),
                               finX + QPointF(pointe, 2 * pointe * sens)};
    dessin.drawPolygon(flecheX, 3);

    QFont police = font();
    police.setBold(true);
    dessin.setFont(police);
    constexpr double boite = 18;
    dessin.drawText(QRectF(finZ.x() - boite, finZ.y() + pointe, boite, boite), Qt::AlignCenter, QStringLiteral("Z"));
    dessin.drawText(QRectF(finX.x() + pointe, m_avant ? finX.y() - boite : finX.y() - bord, boite, boite),
                    Qt::AlignCenter, QStringLiteral("X"));
}
