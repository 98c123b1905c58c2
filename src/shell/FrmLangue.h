#pragma once

#include "ui_FrmLangue.h"

#include <QDialog>

/// The language dialog, the same in every language: it opens on a first run, and from the start-up options.
/// Option1 to Option3 are French, English, Spanish; Command1 takes the choice.
class FrmLangue : public QDialog, public Ui::FrmLangue
{
    Q_OBJECT

public:
    explicit FrmLangue(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The language is chosen, and nothing written yet.
    void LangueChoisie();

private:
    void Command1_Click();
};

/// Command of an entry of the language menu. langue: 0 French, 1 English, 2 Spanish.
void Mnu_Lang(int langue);
