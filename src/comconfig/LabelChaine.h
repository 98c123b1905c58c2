#pragma once

#include <QLabel>

/// A label that shows a chain of characters so that each can be seen: a control character by its name, the doubled
/// "&" of a caption as one. A long chain is broken anywhere; what has no room ends in an ellipsis, and the tool tip
/// shows the whole. Its text() is the chain's label as it is stored.
class LabelChaine : public QLabel
{
    Q_OBJECT

public:
    explicit LabelChaine(QWidget *parent = nullptr);

    /// caracteres: the chain itself, which tells an "&" that a button has doubled from two of them.
    void MontreChaine(const QString &libelle, const QString &caracteres);
    /// Keeps room for that many lines; one to begin with.
    void ReserveLignes(int nombre);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QString m_visible; // what the label shows
    int m_lignes = 1;
};
