#pragma once

#include "ui_FrmLangue.h"

#include <QDialog>

/// The language dialog, with the same words in every language. It opens on the first run, and from the start-up
/// options. Option1 to Option3: French, English, Spanish; Command1 takes the choice.
class FrmLangue : public QDialog, public Ui::FrmLangue
{
    Q_OBJECT

public:
    explicit FrmLangue(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The operator has chosen the language; no file has been written yet.
    void LangueChoisie();

private:
    void Command1_Click();
};

/// Handles an entry of the language menu. langue: 0 French, 1 English, 2 Spanish.
void Mnu_Lang(int langue);
