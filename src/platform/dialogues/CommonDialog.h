#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <memory>

class QDialog;
class QPrinter;

/// The common dialog: asks the operator for a file, a printer or a font. One object serves many commands; each sets
/// what it needs first. Each of the dialogs raises DialogueAnnule when CancelError is set and the operator cancels;
/// without CancelError nothing changes then.
class CommonDialog : public QObject
{
    Q_OBJECT

public:
    explicit CommonDialog(QObject *parent = nullptr);
    ~CommonDialog() override;

    bool CancelError = false; ///< cancelling raises Erreur::DialogueAnnule
    QString FileName;         ///< before: name first offered; after: full path of the choice
    QString FileTitle;        ///< after: the name without its folder
    QString InitDir;          ///< folder first shown; "" is the current one
    QString DialogTitle;
    QString Filter;      ///< pairs "label|pattern", separated by "|"
    int FilterIndex = 0; ///< pair first selected, from 1; after: the pair chosen
    int Flags = 0;       ///< one of the constants below, by dialog
    QString DefaultExt;  ///< saving: ending, without its point, of a name typed without one; "" gives none

    static constexpr int EcrasementDemande = 2;    ///< saving: ask before an existing file is chosen
    static constexpr int Selection = 1;            ///< printing: the selection is offered beside the whole
    static constexpr int ReglageImprimante = 0x40; ///< printing: printer and paper are chosen, and nothing else

    int Copies = 1; ///< after: how many the operator wants, from 1

    // The font: before, what is offered first; after, the choice.
    QString FontName;
    double FontSize = 0; ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontStrikeThru = false;
    bool FontUnderline = false;
    QColor Color;

    /// Sets all that concerns a file: titre, filtre (as in Filter) with its first pair selected, the folder first shown
    /// and the name first offered, "" for none. Cancelling raises, and a file is not overwritten unasked.
    void PrepareFichier(const QString &titre, const QString &filtre, const QString &dossier = {},
                        const QString &nom = {});

    /// Asks for an existing file.
    void ShowOpen();

    /// Asks for a file to write, existing or not.
    void ShowSave();

    /// Asks for a printer and the number of copies, or for printer and paper as Flags says. A PDF file is one of the
    /// printers, and the only one where none is installed. What was chosen stands in Imprimante() for the rest of the
    /// run; the copies do not, each is for the caller to print.
    void ShowPrinter();

    /// Asks for a font with its effects and colour.
    void ShowFont();

    /// The printer as it was last chosen; before that the system's ordinary one. It lives as long as the dialog.
    QPrinter &Imprimante();

private:
    void DemandeFichier(bool enregistrement);
    void DemandeCopies();
    bool Accepte(QDialog &dialogue) const;

    std::unique_ptr<QPrinter> m_imprimante; ///< made when first asked for: looking for the printers takes its time
};
