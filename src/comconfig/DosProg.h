#pragma once

#include "ui_DosProg.h"

#include <QDialog>

/// The reception folder that DosProg edits.
enum TypeDossier {
    DossierProgrammes = 1, ///< ParamCom.DosRecep, where received CN programs go
    DossierJauges = 2      ///< DosJauge, where gauge files from the presetting bench go
};

/// The modal dialog in which the operator chooses a reception folder in the tree of this PC's folders, or creates a
/// sub-folder. The reception folder changes with each selection. "Dorvanel.CFG" changes when the operator applies it.
/// Closing restores nothing.
///
/// FolderTreeview1: the tree; Command1: apply; Command2: close; Command3: asks for a sub-folder in Frame1, where Label1
/// names Text1 (its name) and Command4 creates it.
class DosProg : public QDialog, public Ui::DosProg
{
    Q_OBJECT

public:
    /// Selects the folder that type names. When it is missing the operator is told, and the application folder is
    /// selected. The title is for programs; a caller with another purpose sets his own.
    DosProg(TypeDossier type, QWidget *parent);

Q_SIGNALS:
    void DossierChoisi();   ///< another folder has been selected and is the reception folder now
    void DossierApplique(); ///< the choice has been applied; for this run only when "Dorvanel.CFG" cannot be written

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
