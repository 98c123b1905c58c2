#pragma once

#include "shell/NomsPerdus.h"
#include "ui_FrmConfDem.h"

#include <QDialog>

/// The dialog of the start-up options, which say what the next start does. The controls are a working copy: saving
/// writes them to Reglages and "Dorvanel.ini". The running program does not change.
///
/// Check1, LblDos, Command1: default folder of programs (used or not, its path, its choice); Check2, LblNomConf,
/// Command2: default configuration; Check3: explorer shown; LabelDosConf, Command5: folder of the configurations;
/// Command3: close; Command4: save; Command6: language.
class FrmConfDem : public QDialog, public Ui::FrmConfDem
{
    Q_OBJECT

public:
    explicit FrmConfDem(QWidget *parent);

private:
    void Form_Activate();
    void Command2_Click();
    void Command4_Click();
    void Command6_Click();

    void ChoisitDossier(LabelElide *montre, LigneNom ligne);
};

/// Opens the start-up options.
void Mnu_ConfigDemar();
