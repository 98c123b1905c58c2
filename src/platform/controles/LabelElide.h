#pragma once

#include <QLabel>

/// A label that shows its text on one line, even if the text has line ends. Text that does not fit is cut with an
/// ellipsis, and the tool tip shows it whole. text() is always the whole text.
class LabelElide : public QLabel
{
    Q_OBJECT

public:
    explicit LabelElide(QWidget *parent = nullptr);

    /// Shows the text in the warning colour, and raison in the tool tip behind it. "" ends the warning.
    void Avertit(const QString &raison);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *evenement) override;
    void paintEvent(QPaintEvent *) override;

private:
    QSize UneLigneDe(int largeur) const;
    QString Ligne() const;
    QString Montre() const;

    QString m_raison; // reason of the warning
};
