#pragma once

#include "donnees/ParamCom.h"
#include "ui_FrmCaract.h"

#include <QDialog>
#include <QList>

/// The modal dialog in which the operator composes a chain, one click for each character: machines expect characters
/// there that no keyboard has. Each click changes the codes in ParamCom at once. Label1 shows the chain's label, which
/// the caller reads when the dialog has closed, in whatever way.
///
/// Car_0 to Car_127: a character each, by its code; Command4, Command5: the codes 2 and 3; Text1 with Command6: a free
/// character; Command7: its help; Command1: close; Command2: clear; Command3: undo the last insertion.
class FrmCaract : public QDialog, public Ui::FrmCaract
{
    Q_OBJECT

public:
    /// type: the chain to compose; libelle: its label so far. New characters are added at its end.
    FrmCaract(TypeChaine type, const QString &libelle, QWidget *parent);

protected:
    /// Arrow keys move through the table of characters as it is seen, Home and End to the ends of a row.
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void Form_Load();
    void PoseCaracteres();
    void Command2_Click();
    void Command3_Click();
    void Command6_Click();
    void Command7_Click();
    void RefuseCaractere();

    QPushButton *CreeBouton(int code);
    void ChoisitBouton(QPushButton *bouton, int code, const QString &legende);
    void Ajoute(int code, const QString &legende);
    void MontreLibelle(const QString &libelle);
    void SuitChaine();
    int &Nombre() const;
    int &Code(int position) const;

    TypeChaine m_type;
    QString m_precedent; ///< label before the last insertion
    QList<QPushButton *> m_caracteres;
};
