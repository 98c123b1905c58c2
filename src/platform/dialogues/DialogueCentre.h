#pragma once

#include <QDialog>

/// A dialog that opens in the middle of the screen, and from there stays where the operator puts it.
class DialogueCentre : public QDialog
{
    Q_OBJECT

public:
    using QDialog::QDialog;

protected:
    void showEvent(QShowEvent *evenement) override;
};
