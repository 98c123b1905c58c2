#pragma once

#include "transfer/VueTransfert.h"
#include "ui_Em_Rc.h"

#include <QDialog>

/// The modal dialog in which every transfer runs: it tells the operator what to do at the machine, starts the transfer
/// and shows it.
///
/// Label1: what to do at the machine; Label2: status; Label3: echo of the line, Label4: echo of the character; Label5:
/// current configuration; Bilan: what will go out, then what has passed and what was lost, with BilanSigne beside a
/// warning. Command1: cancel; Command2: start the sending; Command3: other configuration; Command4 to
/// Command6: bench (cancel, next gauge, end); Command7: force the end of a reception.
class Em_Rc : public QDialog, public Ui::Em_Rc
{
    Q_OBJECT

public:
    /// banc: the routine that receives from the bench, which stands on a floor above; the mode ReceptionBanc needs it.
    explicit Em_Rc(QWidget *parent, RoutineReception banc = nullptr);

    /// What a routine sees of the dialog.
    VueTransfert &Vue() { return m_vue; }

    /// Closes the port and then the dialog, whichever way the operator has chosen. A routine that still runs finds the
    /// port closed. The dialog stays alive, unseen, until that routine has returned.
    void done(int resultat) override;

    /// Called for Escape, the close box and the window manager. A running transfer ends only if the operator says Yes.
    void reject() override;

protected:
    void showEvent(QShowEvent *evenement) override;

private:
    void Form_Activate();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Form_Unload();

    void PrepareBilan();
    void MontreMode();
    /// The routine that receives, by the mode and the configuration; nullptr if the configuration names none.
    RoutineReception Routine() const;
    /// Asks for confirmation and runs the reception. Returns when the routine returns, perhaps long after the dialog
    /// was closed.
    void CommenceReception();
    void MontreConfigurationChoisie();

    VueTransfert m_vue{*this};
    RoutineReception m_banc;
};
