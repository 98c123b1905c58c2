#pragma once

#include "ui_FrmAide.h"

#include <QDialog>
#include <QList>

class QTreeWidgetItem;

/// The help window: the manual of the language, its contents, a search through the whole of it, back and forward. It is
/// not modal: it stays readable beside the window that it belongs to, and goes with that one.
///
/// Command1, Command2: back, forward; Text1 with its caption Label1: what is searched; Command3, Command4: previous and
/// next match; Label2: which match of how many; TreeView1: contents; TextBrowser1: the text.
class FrmAide : public QDialog, public Ui::FrmAide
{
    Q_OBJECT

public:
    explicit FrmAide(QWidget *parent);

    /// Shows a manual in the language of LangIndex. manuel: path of an HTML file that exists, in UTF-8, whose headings
    /// bear an id; its pictures lie beside it. section: id of the heading to begin at; one that the manual does not
    /// have begins at the top.
    void Montre(const QString &manuel, const QString &section);

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void PoseTextes();
    void PoseRaccourcis();
    void DresseSommaire();
    void SuitLecture();
    void RemetLecture();
    void Designe(int position);
    void Va(const QString &section);

    void Text1_Change();
    int PositionLecture() const;
    void MontreResultat(qsizetype numero);
    void MarqueResultats();

    /// A heading: where it stands in the text, and its line of the contents.
    struct Titre
    {
        int position;
        QTreeWidgetItem *ligne;
    };

    QList<Titre> m_titres;          // in the order of the text
    QList<QTextCursor> m_resultats; // what the search has found, in the order of the text
    qsizetype m_resultat = 0;       // the one that is shown
    int m_lecture = 0;              // the place of the text that stands at the top of the page
    bool m_retaille = false;        // the page has another size, and does not stand at that place yet
};

/// Opens the manual of the language, at the section of the dialog that is open if there is one. A missing manual is
/// told to the operator.
void Mnu_Aide();

/// Makes F1 give the help inside dialogs, where the entries of the main window are out of reach. Once, when the main
/// window exists.
void BrancheAide();
