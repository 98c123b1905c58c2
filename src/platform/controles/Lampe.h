#pragma once

#include <QWidget>

/// A round lamp of the status panel. It tells its state by more than its colour: lit it bears a bright spot, unlit
/// a bar; the tool tip and the accessible description say it in words.
class Lampe : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int FillColor READ FillColor WRITE setFillColor)

public:
    static constexpr int Verte = 65280; ///< red in the low byte
    static constexpr int Rouge = 255;

    explicit Lampe(QWidget *parent = nullptr);

    int FillColor() const { return m_couleur; }

    /// couleur: Verte or Rouge.
    void setFillColor(int couleur);

    /// nom: what the lamp stands for, as an assistive program reads it; allumee, eteinte: the words for its two states,
    /// as the tool tip shows them.
    void setTextes(const QString &nom, const QString &allumee, const QString &eteinte);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    void DitEtat();

    int m_couleur = Rouge;
    QString m_allumee;
    QString m_eteinte;
};
