#pragma once

#include "platform/base/FinsDeLigne.h"

#include <QPlainTextEdit>
#include <QPoint>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>

/// The pane that holds a program. What it is given comes back exactly: each line end keeps its kind (CR LF, lone CR,
/// lone LF) through edits and undo, and tabs, form feeds, NUL and all other characters of code page 1252 stay as they
/// are. A character that code page 1252 lacks becomes "?" as it enters, so that what stands in the pane is what a file
/// and the line get. Positions and lengths count the characters of Text(): CR LF is two. A line without end is shown on
/// several rows, so that it is as quick to show as any other.
///
/// How it works: a line end of the text is one block separator of the document. The separator's own character format
/// carries the kind of line end, and CR LF, the ordinary kind, carries nothing. Where a long line goes on in the next
/// row a separator stands too, of the kind that is no character.
class RichTextBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Forms of LoadFile.
    static constexpr int TexteRiche = 0;
    static constexpr int TexteSimple = 1;

    explicit RichTextBox(QWidget *parent = nullptr);

    /// The whole text. Setting it keeps the look of the text's beginning, puts the insertion point at the start and
    /// forgets what Ctrl+Z could undo.
    QString Text() const;
    void setText(const QString &texte);

    /// Takes over the text of another pane, which is empty then. Nothing is copied, however long the text, unless this
    /// pane shows its text in a look of its own, which the text then takes.
    void PrendTexte(RichTextBox &autre);

    /// MIME type of a copy's bytes in code page 1252, with which the copy comes back exactly in this pane and in those
    /// of the same type. Without it, as at first, a copy is text alone.
    void setFormatCopie(const QString &format) { m_formatCopie = format; }

    bool EstVide() const;

    /// The line end in front of a line of the document, which is not its first.
    FinDeLigne FinAvant(const QTextBlock &bloc) const;

    /// The selected text. Setting it replaces the selection, in the look of its beginning, and leaves the insertion
    /// point behind the new text.
    QString SelText() const;
    void setSelText(const QString &texte);

    /// Start and length of the selection, in characters of Text(). Setting the start empties the selection; what lies
    /// beyond the text is taken as its end, and a bound between CR and LF takes in the whole line end.
    int SelStart() const;
    void setSelStart(int debut);
    int SelLength() const;
    void setSelLength(int longueur);

    /// Appends texte, in time that depends on its length only. A CR that ended the text and a LF that begins texte are
    /// one line end from then on. A pane scrolled to its end follows. Ctrl+Z undoes nothing from before.
    void Ajoute(const QString &texte);

    /// True when the text ends with suffixe; an empty one always matches.
    bool FinitPar(const QString &suffixe) const;

    /// Cuts the last n characters off; all of them when there are fewer.
    void RetireFin(int n);

    /// Loads a file as format says, and raises what the reading raises (see FichierTexte.h and LecteurRtf.h); the pane
    /// then keeps what it held. Plain text takes the pane's font, rich text brings its own looks.
    void LoadFile(const QString &chemin, int format);

    // The look of the selection, told by its first character, or of what is typed at the insertion point. Setting it
    // leaves the text as it is, so Change is not emitted.
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
    /// Another text is about to take the place of the whole text, which can still be read.
    void Remplacement();
    /// The text was changed, by hand or by the program.
    void Change();
    /// A key that gives texte, before the pane takes it. Backspace, Tab and Enter count; Ctrl with a letter does not.
    void KeyPress(const QString &texte);
    /// A button pressed at a point of the screen. The Menu key counts as the right button; the pane pops up no menu.
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
    bool m_muet = false;         ///< what changes now is not for Change
    int m_lignesAllegees = 0;    ///< lines that the text had when AllegeMiseEnPage last ran
    int m_couture1 = 0;          ///< where the last edit began, and where what it inserted ended: the only places at
    int m_couture2 = 0;          ///< which a CR and a LF can newly have met
};
