#pragma once

#include "shell/NomsPerdus.h"
#include "ui_FrmConfDem.h"

#include <QDialog>

/// The start-up options: what the next start does. The controls are a working copy: the settings and "Dorvanel.ini"
/// take it when it is saved, and the running program goes on as it is.
///
/// Check1, LblDos, Command1: default folder of programs, in use or not, and its choice; Check2, LblNomConf, Command2:
/// default configuration; Check3: explorer shown; LabelDosConf, Command5: folder of the configurations; Command3:
/// close; Command4: save; Command6: language.
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
