#pragma once

#include <QWidget>

/// A round lamp of the status panel. It shows its state not only by colour: a lit lamp has a bright spot, an unlit one
/// a bar, and the tool tip and the accessible description give it in words.
class Lampe : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int FillColor READ FillColor WRITE setFillColor)

public:
    static constexpr int Verte = 65280; ///< colours as numbers with red in the low byte
    static constexpr int Rouge = 255;

    explicit Lampe(QWidget *parent = nullptr);

    int FillColor() const { return m_couleur; }

    /// couleur: Verte or Rouge.
    void setFillColor(int couleur);

    /// Sets the lamp's texts. nom: its accessible name. allumee, eteinte: the words for its two states, for the tool
    /// tip.
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
