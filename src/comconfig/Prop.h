#pragma once

#include "donnees/ParamCom.h"
#include "ui_Prop.h"

#include <QDialog>

class CommonDialog;

/// The modal dialog of the communication settings: a view of ParamCom in three tabs. A click on an option changes the
/// record at once. Lists and text boxes are read by "Apply" and "Save as". Closing reverts nothing.
///
/// First tab: Text1: comment; Label6: name of the configuration; Command20, Command21, Command22: chains of the end of
/// transfer, end of line, beginning of program; cmdOK: apply; Command1: save as; cmdCancel: close.
/// Second tab: Label9, Label7, Label11, Label14, Label15, Label16 name Text2 to Text7; Text8: fixed size of a
/// reception; Command16: reception folder; Command17: save as; Command18: close.
/// Third tab: Command2, Command3, Command5: folder of programs, of gauges, editor; Command4: close.
/// Command6 to Command15, Command19, Command23 to Command25: help.
class Prop : public QDialog, public Ui::Prop
{
    Q_OBJECT

public:
    explicit Prop(QWidget *parent);

    /// Shows the name of the configuration: one that has no file yet, or the .par file nom.
    void NommeNouvelle();
    void Nomme(const QString &nom);
    /// Leaves only the tab of the folders and the editor enabled.
    void LimiteAuxDossiers();

    /// Every way of closing comes through here. Options that were clicked but neither applied nor saved mark the
    /// configuration as such, so that the transfers warn of it.
    void done(int resultat) override;

protected:
    void changeEvent(QEvent *evenement) override;
    /// Describes the ports again whenever their list opens or a tool tip is asked for, since adapters come and go.
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void Form_Load();
    void Form_Activate();
    void cmdOK_Click();
    void Command1_Click();
    void Command5_Click();

    void BrancheCommandes();
    void BrancheChaines();
    void BrancheDossiers();
    static void AnnoncePertes();
    void VaA(QLineEdit *boite);
    void Valide();

    CommonDialog *const CommonDialog1; ///< file dialog of "Save as" and of the editor
    ConfigurationCom m_validee;        // the record when the dialog opened, or was last applied or saved
};
