#pragma once

#include <QLabel>

/// A label that shows its text on one line, whatever line ends that holds, cut at the right with an ellipsis where it
/// has no room; the tool tip then shows the whole. Its text() is always the whole.
class LabelElide : public QLabel
{
    Q_OBJECT

public:
    explicit LabelElide(QWidget *parent = nullptr);

    /// From now on the text stands in the colour of a warning, and the tool tip tells raison behind it; "" ends that.
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

    QString m_raison; // of the warning
};
