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

    void MontreChaine(const QString &libelle);
    /// Keeps room for that many lines; one to begin with.
    void ReserveLignes(int nombre);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The form in which the label shows libelle.
    static QString Visible(const QString &libelle);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    int m_lignes = 1;
};
