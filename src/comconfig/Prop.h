#pragma once

#include "donnees/ParamCom.h"
#include "ui_Prop.h"

#include <QDialog>

class CommonDialog;

/// The modal dialog of the communication settings: a view on ParamCom in three tabs. An option is in the record from
/// the click on; lists and text boxes are read by Apply and by Save As. Closing reverts nothing.
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

    /// The dialog is about a configuration that has no file yet, or about the .par file of that name.
    void NommeNouvelle();
    void Nomme(const QString &nom);
    /// Only the folders and the editor can be reached.
    void LimiteAuxDossiers();

    /// Closing, by whatever way, with choices in the record that were neither applied nor saved: the transfers are to
    /// know of it.
    void done(int resultat) override;

protected:
    void changeEvent(QEvent *evenement) override;
    /// What the list of ports says of this PC is looked up as it is looked at: adapters come and go.
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

    CommonDialog *const CommonDialog1; ///< file dialog of Save As and of the editor
    ConfigurationCom m_validee;        // the record when the dialog opened, or was last applied or saved
};
