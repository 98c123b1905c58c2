#pragma once

#include "ui_FrmAide.h"

#include <QDialog>
#include <QList>

class QTreeWidgetItem;

/// The help window: the manual in the operator's language with its contents, a search, back and forward. It is not
/// modal, so it can be read beside the window that it belongs to, and closes with that window.
///
/// Command1, Command2: back, forward; Text1 with its caption Label1: what is searched; Command3, Command4: previous and
/// next match; Label2: which match of how many; TreeView1: contents; TextBrowser1: the text.
class FrmAide : public QDialog, public Ui::FrmAide
{
    Q_OBJECT

public:
    explicit FrmAide(QWidget *parent);

    /// Shows a manual, in a window with captions of LangIndex. manuel: path of an existing HTML file in UTF-8, whose
    /// headings have an id and whose pictures lie beside it. section: id of the heading to show first; an unknown one
    /// shows the top.
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

    /// A heading: its position in the text, and its line in the contents.
    struct Titre
    {
        int position;
        QTreeWidgetItem *ligne;
    };

    QList<Titre> m_titres;          // in the order of the text
    QList<QTextCursor> m_resultats; // what the search has found, in the order of the text
    qsizetype m_resultat = 0;       // index of the match shown
    int m_lecture = 0;              // position in the text of the top of the visible page
    bool m_retaille = false;        // the size has changed, and the page is not back at m_lecture yet
};

/// Opens the manual in the operator's language, at the section of the dialog that is open, if there is one. A missing
/// manual is told to the operator.
void Mnu_Aide();

/// Makes F1 open the help inside dialogs as well, where the menu entry of the main window is blocked. Once, when the
/// main window exists.
void BrancheAide();
