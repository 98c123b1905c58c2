#pragma once

#include <QDialog>

class QComboBox;
class QPrinter;
class QRadioButton;

/// Asks for the printer, its paper and the orientation of the sheet. A PDF file is among the printers. The words are
/// the toolkit's own, in the language of the translator that the program has installed.
class DialogueImprimante : public QDialog
{
    Q_OBJECT

public:
    /// imprimante: its settings are shown first, and Applique() changes them.
    DialogueImprimante(QPrinter &imprimante, QWidget *parent);

    /// Gives the operator's choice to the printer.
    void Applique() const;

private:
    void DonneImprimantes();
    void DonnePapiers();

    QPrinter &m_imprimante;
    QComboBox *m_nom;    ///< the data of an entry is the printer's name; "" for PDF
    QComboBox *m_papier; ///< the data of an entry is its place among QPageSize::PageSizeId
    QRadioButton *m_portrait;
    QRadioButton *m_paysage;
};
