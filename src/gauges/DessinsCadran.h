#pragma once

#include <QAbstractButton>

// The pictures of the dial dialog (JauTour), drawn for any size and any theme. A tile is pressed with the mouse, or
// with Tab and the space bar. The mouse leaves the keyboard focus where it is.

/// A tile that gives a value to a box. It is checked while the box holds that value.
class Tuile : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString valeur MEMBER m_valeur) ///< what it gives

public:
    explicit Tuile(QWidget *parent);

    const QString &Valeur() const { return m_valeur; }

    QSize sizeHint() const override;

protected:
    void nextCheckState() override {} // the content of the box checks a tile, not the click
    void paintEvent(QPaintEvent *) override;
    /// Draws the figure, in a square of Cote units around (0, 0).
    virtual void Dessine(QPainter &dessin) const = 0;

    static constexpr double Cote = 56;

private:
    QString m_valeur;
};

/// A cutting plate with its nose radius, in mm, written on it. The larger the radius, the rounder its corners.
class TuilePlaquette : public Tuile
{
    Q_OBJECT

public:
    using Tuile::Tuile;

protected:
    void Dessine(QPainter &dessin) const override;
};

/// A tool in the quadrant of its locator. The holder comes from outside the dial, and the nose points at the crossing
/// of the axes. Locator 0 is a round plate, which cuts on every side.
class TuileOutil : public Tuile
{
    Q_OBJECT
    Q_PROPERTY(bool avant MEMBER m_avant) ///< on the dial of the front turret

public:
    using Tuile::Tuile;

protected:
    void Dessine(QPainter &dessin) const override;

private:
    bool m_avant = false;
};

/// A dial: the axes X and Z, which cross in the middle of its tiles and are drawn under them. X points away from the
/// operator for a back turret, and towards him for a front turret.
class Cadran : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool avant MEMBER m_avant) ///< of the front turret

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QPointF Croisement() const;

    bool m_avant = false;
};
