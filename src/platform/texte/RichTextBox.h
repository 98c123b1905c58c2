#pragma once

#include "platform/base/FinsDeLigne.h"

#include <QPlainTextEdit>
#include <QPoint>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>

/// The text pane, which holds a CN program exactly. Each line end keeps its kind (CR LF, lone CR, lone LF) through
/// edits and undo, and tabs, form feeds, NUL and all other characters of code page 1252 stay as they are. A character
/// that code page 1252 lacks becomes "?" on entry, so that the pane shows exactly what a file or the line gets.
/// Positions and lengths count the characters of Text(), where CR LF is two. A very long line is shown on several rows,
/// so that it takes no longer to show than others.
///
/// How it works: each line end of the text is one block separator of the document. The character format of the
/// separator has a property with the kind of line end; the ordinary CR LF has none. Where a long line goes on in the
/// next row there is a separator of the kind FinDeLigne::Aucune.
class RichTextBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// File formats for LoadFile.
    static constexpr int TexteRiche = 0;
    static constexpr int TexteSimple = 1;

    explicit RichTextBox(QWidget *parent = nullptr);

    /// The whole text. Setting it keeps the look of the text's beginning, moves the cursor to the start and clears the
    /// undo history.
    QString Text() const;
    void setText(const QString &texte);

    /// Takes over the text of another pane, which is left empty. The text is not copied, however long it is, unless
    /// this pane has another font or look, which the text then takes.
    void PrendTexte(RichTextBox &autre);

    /// MIME type under which copied text is also offered as bytes in code page 1252, so that panes with the same type
    /// paste it exactly. Empty at first: text is then copied as plain text only.
    void setFormatCopie(const QString &format) { m_formatCopie = format; }

    bool EstVide() const;

    /// The kind of the line end before bloc, which is not the first block of the document.
    FinDeLigne FinAvant(const QTextBlock &bloc) const;

    /// The selected text. Setting it replaces the selection in the look of its beginning, and leaves the cursor behind
    /// the new text.
    QString SelText() const;
    void setSelText(const QString &texte);

    /// Start and length of the selection, in characters of Text(). Setting the start empties the selection. Values
    /// beyond the text mean its end. A selection that begins or ends between CR and LF includes the whole line end.
    int SelStart() const;
    void setSelStart(int debut);
    int SelLength() const;
    void setSelLength(int longueur);

    /// Appends texte, in a time that depends on its length only. A CR at the end of the text and a LF at the beginning
    /// of texte become one line end. A pane that is scrolled to its end stays there. Clears the undo history.
    void Ajoute(const QString &texte);

    /// True when the text ends with suffixe; an empty one always matches.
    bool FinitPar(const QString &suffixe) const;

    /// Removes the last n characters, or all when there are fewer.
    void RetireFin(int n);

    /// Loads the file at chemin. Plain text takes the pane's font, rich text has its own looks. format: TexteRiche or
    /// TexteSimple. Raises as LitFichierTexte() and LitRtf(); the pane then keeps its text.
    void LoadFile(const QString &chemin, int format);

    // The look of the first selected character, or of text typed at the cursor. Setting it does not change the text, so
    // Change is not emitted.
    bool SelBold() const { return Police().bold(); }
    void setSelBold(bool gras) { Habille(QTextFormat::FontWeight, gras ? QFont::Bold : QFont::Normal); }
    bool SelItalic() const { return Police().italic(); }
    void setSelItalic(bool italique) { Habille(QTextFormat::FontItalic, italique); }
    bool SelUnderline() const { return Police().underline(); }
    void setSelUnderline(bool souligne)
    {
        Habille(QTextFormat::TextUnderlineStyle,
                souligne ? QTextCharFormat::SingleUnderline : QTextCharFormat::NoUnderline);
    }
    bool SelStrikeThru() const { return Police().strikeOut(); }
    void setSelStrikeThru(bool barre) { Habille(QTextFormat::FontStrikeOut, barre); }
    QString SelFontName() const { return Police().family(); }
    void setSelFontName(const QString &police) { Habille(QTextFormat::FontFamilies, QStringList{police}); }
    double SelFontSize() const { return Police().pointSizeF(); } ///< points
    void setSelFontSize(double points) { Habille(QTextFormat::FontPointSize, points); }
    QColor SelColor() const;
    void setSelColor(const QColor &couleur) { Habille(QTextFormat::ForegroundBrush, QBrush(couleur)); }

Q_SIGNALS:
    /// Emitted just before the whole text is replaced. Text() still gives the old one.
    void Remplacement();
    /// The text was changed, by the operator or by the program.
    void Change();
    /// A key that types or deletes, before the pane handles it. Backspace, Tab and Enter count; Ctrl with a letter does
    /// not.
    void KeyPress(const QString &texte);
    /// A mouse button was pressed at a point of the screen. The Menu key counts as the right button. The pane has no
    /// context menu of its own.
    void MouseDown(Qt::MouseButton bouton, const QPoint &ici);

protected:
    bool event(QEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void paintEvent(QPaintEvent *evenement) override;
    void inputMethodEvent(QInputMethodEvent *evenement) override;
    void mousePressEvent(QMouseEvent *evenement) override;
    void contextMenuEvent(QContextMenuEvent *evenement) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void SuitDocument();
    void Remplace(const QString &texte, const QTextCharFormat &format);
    void Vide(const QTextCharFormat &format);
    void RevientAuDebut();
    void Insere(QTextCursor &curseur, const QString &texte, QTextCharFormat format);
    void AllegeMiseEnPage();
    void RecolleFins();
    void PasseFinDeRang(const QKeyEvent &touche);
    bool EstSuite(const QTextBlock &bloc) const { return bloc.isValid() && FinAvant(bloc) == FinDeLigne::Aucune; }
    QString AvecFins(const QString &brut, QTextBlock bloc) const;
    int FinDuDocument() const { return document()->characterCount() - 1; }
    static int PositionsPour(qsizetype n);
    QString Queue(int positions) const;
    int PlaceDe(int position) const;
    int PositionDe(int place, bool apresFin) const;
    QTextCharFormat FormatA(int position) const;
    QTextCharFormat Aspect() const;
    QFont Police() const;
    void Habille(QTextFormat::Property propriete, const QVariant &valeur);

    QString m_formatCopie;
    bool m_finsDiverses = false; ///< the text may hold line ends other than CR LF
    bool m_muet = false;         ///< changes are not reported by Change for now
    int m_lignesAllegees = 0;    ///< lines that the text had when AllegeMiseEnPage last ran
    int m_coutureDebut = 0;      ///< start of the last edit, and end of the text that it inserted: the only places
    int m_coutureFin = 0;        ///< where a CR and a LF can newly have met
};
