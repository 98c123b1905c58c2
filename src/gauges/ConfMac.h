#pragma once

#include "platform/dialogues/DialogueCentre.h"
#include "ui_ConfMac.h"

/// Shows and edits ParamMac. Options change it at once, typed values only when they are saved. Command1 (close) takes
/// nothing back.
///
/// OptMac: machine, OptTour: turret, OptJauge: kind of gauge file, OptionX: X in radius or diameter, OptionRAZ: reset
/// of the dynamic correctors. Text4: pocket difference, Text1 and Text2: limits of X and Z, Text3: correctors, Text5:
/// extension, Text6: program number, named by Label4, Label1 to Label3, Label5, Label6. Command2: save as.
class ConfMac : public DialogueCentre, public Ui::ConfMac
{
    Q_OBJECT

public:
    /// chemin: the .mac file that ParamMac was read from, which the title then names; "" for none.
    explicit ConfMac(QWidget *parent, const QString &chemin = {});

private:
    void Form_Load();
    void Command2_Click();

    void BrancheOptions();
    void MontreSelonChoix();
    void MontreTextes();
    void PrendTextes();
    void MontreNom();
    void AnnonceExtension();

    QString m_chemin;
};
