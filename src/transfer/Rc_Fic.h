#pragma once

#include "transfer/VueTransfert.h"
#include "ui_Rc_Fic.h"

#include <QDialog>

/// The modal dialog that precedes every reception: name, extension and folder of the file, configuration, line end.
///
/// Label1 and Label2 name Text1 (file name) and Combo1 (extension); AvisExtension: warning about it; Label3: folder;
/// Label4: current configuration; Option1_0 to Option1_3: line ending; Command1: give up; Command2: receive; Command3:
/// other folder; Command4: other configuration.
class Rc_Fic : public QDialog, public Ui::Rc_Fic
{
    Q_OBJECT

public:
    /// banc: see Em_Rc.
    explicit Rc_Fic(QWidget *parent, RoutineReception banc = nullptr);

private:
    void Form_Load();
    void Form_Activate();
    void Combo1_Change(const QString &extension);
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

    void MontreDossier();
    void MontreFinLigne();
    bool ConfirmeRemplacement() const;
    static QString &Dossier();

    RoutineReception m_banc;
};
