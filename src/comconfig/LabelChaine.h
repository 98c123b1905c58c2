#pragma once

#include <QLabel>

/// A label that shows a chain of characters so that each can be seen: a control character by its name, the doubled "&"
/// of a caption as one. A long chain is broken anywhere. When there is not enough room the text ends in an ellipsis,
/// and the tool tip has all of it. text() is the chain's label as it is stored.
class LabelChaine : public QLabel
{
    Q_OBJECT

public:
    explicit LabelChaine(QWidget *parent = nullptr);

    /// libelle: the label as it is stored; caracteres: the chain itself. It shows whether two "&" of the label stand
    /// for one character or for two.
    void MontreChaine(const QString &libelle, const QString &caracteres);
    /// Reserves the height of nombre lines; 1 by default.
    void ReserveLignes(int nombre);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QString m_visible; // what the label shows
    int m_lignes = 1;
};
