#pragma once

#include <QCheckBox>

/// A check box whose caption wraps onto as many lines as it needs; that of an ordinary check box would be cut.
class CaseLongue : public QCheckBox
{
    Q_OBJECT

public:
    explicit CaseLongue(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int largeur) const override;

protected:
    bool hitButton(const QPoint &ici) const override;
    void paintEvent(QPaintEvent *) override;

private:
    QRect Case() const;
    int Retrait() const;
    int Marques() const;
};
