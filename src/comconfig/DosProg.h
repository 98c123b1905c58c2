#pragma once

#include "ui_DosProg.h"

#include <QDialog>

/// The reception folder that DosProg edits.
enum TypeDossier {
    DossierProgrammes = 1, ///< ParamCom.DosRecep, where received CN programs go
    DossierJauges = 2      ///< DosJauge, where gauge files from the presetting bench go
};

/// The modal dialog in which the operator chooses a reception folder in the tree of this PC's folders, or creates a
/// sub-folder there. The folder follows the selection at once; "Dorvanel.CFG" follows when it is applied. Closing
/// brings nothing back.
///
/// FolderTreeview1: the tree; Command1: apply; Command2: close; Command3: asks for a sub-folder in Frame1, where Label1
/// names Text1 (its name) and Command4 creates it.
class DosProg : public QDialog, public Ui::DosProg
{
    Q_OBJECT

public:
    /// Selects the folder that type names. When that has gone the operator is told at once, and the application folder
    /// takes its place. The caption is for programs; whoever opens the dialog for more writes his own.
    DosProg(TypeDossier type, QWidget *parent);

Q_SIGNALS:
    void DossierChoisi();   ///< another folder has been selected, and is the reception folder now
    void DossierApplique(); ///< it has been applied, for this run alone when "Dorvanel.CFG" could not be written

private:
    void Form_Load();
    void FolderTreeview1_SelectionChange();
    void FolderTreeview1_Disparu(const QString &dossier);
    void Command1_Click();
    void Command3_Click();
    void Command4_Click();

    void DitDisparu(const QString &dossier);
    void MontreNouveau(bool montre);
    QString &Dossier() const;

    TypeDossier m_type;
    bool m_dit = false; // the operator is being told that the selected folder has gone
};
