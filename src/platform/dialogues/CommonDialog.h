#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <memory>

class QPrinter;

/// The common dialog: asks the operator for a file, a printer or a font. One object serves many commands; each command
/// sets the fields that it needs before it shows a dialog. When the operator cancels, the dialog raises DialogueAnnule
/// if CancelError is set; otherwise nothing changes.
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
    QString DefaultExt;  ///< saving: ending given to a name typed without one, no point in it; "" after each dialog

    static constexpr int EcrasementDemande = 2;    ///< saving: ask before an existing file is chosen
    static constexpr int Selection = 1;            ///< printing: the selection is offered beside the whole
    static constexpr int ReglageImprimante = 0x40; ///< printing: printer and paper are chosen, and nothing else

    int Copies = 1; ///< after: how many copies the operator wants, from 1

    // The font: before, what is offered first; after, the choice.
    QString FontName;
    double FontSize = 0; ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontStrikeThru = false;
    bool FontUnderline = false;
    QColor Color;

    /// Sets all the fields for a file. titre: of the dialog; filtre: as Filter, its first pair is selected; dossier:
    /// folder first shown; nom: name first offered, "" for none. Cancelling then raises, and the dialog asks before an
    /// existing file is overwritten.
    void PrepareFichier(const QString &titre, const QString &filtre, const QString &dossier = {},
                        const QString &nom = {});

    /// Asks for an existing file.
    void ShowOpen();

    /// Asks for a file to write, existing or not.
    void ShowSave();

    /// Asks for a printer and the number of copies, or for printer and paper when Flags is ReglageImprimante. On Linux
    /// a PDF file is always among the printers; on Windows SansImprimante is raised when there is none. The choice
    /// stands in Imprimante() until the program ends. The number of copies stands in Copies; the caller prints each
    /// copy by itself.
    void ShowPrinter();

    /// Asks for a font with its effects and colour.
    void ShowFont();

    /// The printer as it was last chosen, at first the system's default one. It lives as long as the dialog.
    QPrinter &Imprimante();

private:
    void DemandeFichier(bool enregistrement);
    bool Accepte(bool choisi) const;

    std::unique_ptr<QPrinter> m_imprimante; ///< made when first asked for: looking for the printers takes its time
};
