#pragma once

#include <QLabel>

/// A label that shows its text on one line, cut at the right with an ellipsis where it has no room; the tool tip then
/// shows the whole. Its text() is always the whole.
class LabelElide : public QLabel
{
    Q_OBJECT

public:
    explicit LabelElide(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *evenement) override;
    void paintEvent(QPaintEvent *) override;

private:
    QString Montre() const;
};
