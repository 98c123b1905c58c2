#include "platform/texte/RichTextBox.h"

#include "platform/base/FinsDeLigne.h"
#include "platform/base/PageCode1252.h"
#include "platform/base/Touches.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/texte/AspectVolet.h"
#include "platform/texte/LecteurRtf.h"
#include "platform/texte/MiseEnPage.h"
#include "platform/texte/SansAnnulation.h"
#include "platform/texte/TouchesVolet.h"

#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

/// Property of a block separator's format: its kind of line end. Typed text may inherit it, where it means nothing.
constexpr int ProprieteFin = QTextFormat::UserProperty + 1;

} // namespace

RichTextBox::RichTextBox(QWidget *parent)
    : QPlainTextEdit(parent)
{
    constexpr int ColonnesTabulation = 8;
    document()->setDocumentLayout(new MiseEnPage(document()));
    setDocument(document());
    setLineWrapMode(NoWrap);
    setFont(PoliceOrdinaire());
    setTabStopDistance(ColonnesTabulation * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    SuitDocument();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (m_muet)
            return;
        RecolleFins();
        Q_EMIT Change();
    });
}

void RichTextBox::SuitDocument()
{
    connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int ajoutes) {
        m_coutureDebut = position;
        m_coutureFin = position + ajoutes;
    });
}

QString RichTextBox::Text() const
{
    return AvecFins(document()->toRawText(), document()->firstBlock());
}

void RichTextBox::setText(const QString &texte)
{
    Remplace(Normalise(texte), FormatA(0));
}

void RichTextBox::PrendTexte(RichTextBox &autre)
{
    if (FormatA(0).propertyCount() > 0 || font() != autre.font()) {
        setText(autre.Text());
    } else {
        Q_EMIT Remplacement();
        // The two panes exchange their documents. A pane deletes the old document if it is its parent, so the parents
        // are removed first.
        QTextDocument *const mien = document();
        QTextDocument *const sien = autre.document();
        mien->disconnect(this);
        sien->disconnect(&autre);
        mien->setParent(nullptr);
        sien->setParent(nullptr);
        setDocument(sien);
        autre.setDocument(mien);
        sien->setParent(this);
        mien->setParent(&autre);
        SuitDocument();
        autre.SuitDocument();
        std::swap(m_finsDiverses, autre.m_finsDiverses);
        RevientAuDebut();
        Q_EMIT Change();
    }
    autre.setText(QString());
}

bool RichTextBox::EstVide() const
{
    return document()->isEmpty();
}

QString RichTextBox::SelText() const
{
    const QTextCursor curseur = textCursor();
    return AvecFins(curseur.selectedText(), document()->findBlock(curseur.selectionStart()));
}

void RichTextBox::setSelText(const QString &texte)
{
    QTextCursor curseur = textCursor();
    const QTextCharFormat format = Aspect();
    curseur.beginEditBlock();
    curseur.removeSelectedText();
    Insere(curseur, Normalise(texte), format);
    curseur.endEditBlock();
    setTextCursor(curseur);
}

int RichTextBox::SelStart() const
{
    return PlaceDe(textCursor().selectionStart());
}

void RichTextBox::setSelStart(int debut)
{
    QTextCursor curseur = textCursor();
    curseur.setPosition(PositionDe(debut, false));
    setTextCursor(curseur);
}

int RichTextBox::SelLength() const
{
    const QTextCursor curseur = textCursor();
    return curseur.hasSelection() ? PlaceDe(curseur.selectionEnd()) - PlaceDe(curseur.selectionStart()) : 0;
}

void RichTextBox::setSelLength(int longueur)
{
    QTextCursor curseur = textCursor();
    const int debut = curseur.selectionStart();
    curseur.setPosition(debut);
    if (longueur > 0)
        curseur.setPosition(PositionDe(PlaceDe(debut) + longueur, true), QTextCursor::KeepAnchor);
    setTextCursor(curseur);
}

void RichTextBox::Ajoute(const QString &texte)
{
    if (texte.isEmpty())
        return;
    const SansAnnulation sansAnnulation(document());
    QScrollBar *barre = verticalScrollBar();
    const bool suit = barre->value() == barre->maximum();
    QTextCursor fin(document());
    fin.beginEditBlock();
    fin.setPosition(FinDuDocument());
    Insere(fin, Normalise(texte), fin.charFormat());
    fin.endEditBlock();
    AllegeMiseEnPage();
    if (suit)
        barre->setValue(barre->maximum());
}

bool RichTextBox::FinitPar(const QString &suffixe) const
{
    return Queue(PositionsPour(suffixe.size())).endsWith(suffixe);
}

void RichTextBox::RetireFin(int n)
{
    if (n <= 0)
        return;
    const SansAnnulation sansAnnulation(document());
    const int positions = PositionsPour(n);
    const QString texte = Queue(positions);
    const int fin = FinDuDocument();
    QTextCursor queue(document());
    queue.beginEditBlock();
    queue.setPosition(fin);
    queue.setPosition(std::max(fin - positions, 0), QTextCursor::KeepAnchor);
    const QTextCharFormat format = FormatA(queue.selectionStart());
    queue.removeSelectedText();
    // These positions may hold more than n characters: the surplus is inserted again.
    Insere(queue, texte.chopped(std::min<qsizetype>(n, texte.size())), format);
    queue.endEditBlock();
}

void RichTextBox::LoadFile(const QString &chemin, int format)
{
    if (format != TexteRiche) {
        Remplace(LitFichierTexte(chemin), QTextCharFormat());
        return;
    }
    const QList<MorceauRtf> morceaux = LitRtf(LitOctets(chemin));
    const SansAnnulation sansAnnulation(document());
    QTextCursor curseur(document());
    curseur.beginEditBlock();
    Vide(QTextCharFormat());
    for (const MorceauRtf &morceau : morceaux)
        Insere(curseur, Normalise(morceau.texte), FormatDe(morceau.attributs));
    curseur.endEditBlock();
    RevientAuDebut();
}

QColor RichTextBox::SelColor() const
{
    const QTextCharFormat aspect = Aspect();
    const bool propre = aspect.hasProperty(QTextFormat::ForegroundBrush);
    return propre ? aspect.foreground().color() : palette().color(QPalette::Text);
}

bool RichTextBox::event(QEvent *evenement)
{
    // If the pane accepted this event, the menu would never get its shortcut.
    if (evenement->type() == QEvent::ShortcutOverride && EstRaccourciDuMenu(*static_cast<QKeyEvent *>(evenement))) {
        evenement->ignore();
        return false;
    }
    return QPlainTextEdit::event(evenement);
}

void RichTextBox::keyPressEvent(QKeyEvent *evenement)
{
    // A shortcut comes here when its menu entry is disabled. Qt would delete text on some of them.
    if (EstRaccourciDuMenu(*evenement)) {
        evenement->ignore();
        return;
    }
    if (DonneUnCaractere(*evenement))
        Q_EMIT KeyPress(evenement->text());
    if (EstEntree(*evenement) && !isReadOnly()) {
        setSelText(QStringLiteral("\r\n"));
        ensureCursorVisible();
        evenement->accept();
        return;
    }
    PasseFinDeRang(*evenement);
    QKeyEvent propre(evenement->type(), evenement->key(), evenement->modifiers(), Normalise(evenement->text()),
                     evenement->isAutoRepeat(), static_cast<quint16>(evenement->count()));
    QPlainTextEdit::keyPressEvent(&propre);
    evenement->setAccepted(propre.isAccepted());
}

/// Moves the cursor over the end of a row that goes on in the next one, so that Backspace and Delete remove a character
/// and not this row end.
void RichTextBox::PasseFinDeRang(const QKeyEvent &touche)
{
    QTextCursor curseur = textCursor();
    const bool arriere = touche.key() == Qt::Key_Backspace && curseur.atBlockStart() && EstSuite(curseur.block());
    const bool avant = touche.key() == Qt::Key_Delete && curseur.atBlockEnd() && EstSuite(curseur.block().next());
    if ((!arriere && !avant) || curseur.hasSelection() || isReadOnly())
        return;
    curseur.movePosition(arriere ? QTextCursor::Left : QTextCursor::Right);
    setTextCursor(curseur);
}

/// Draws a bar in front of each row that continues the line above.
void RichTextBox::paintEvent(QPaintEvent *evenement)
{
    QPlainTextEdit::paintEvent(evenement);
    QPainter peintre(viewport());
    const double largeur = document()->documentMargin() / 2;
    for (QTextBlock rang = firstVisibleBlock(); rang.isValid(); rang = rang.next()) {
        const QRectF place = blockBoundingGeometry(rang).translated(contentOffset());
        if (place.top() > evenement->rect().bottom())
            return;
        if (EstSuite(rang))
            peintre.fillRect(QRectF(place.left(), place.top(), largeur, place.height()), palette().highlight());
    }
}

void RichTextBox::inputMethodEvent(QInputMethodEvent *evenement)
{
    QInputMethodEvent propre(evenement->preeditString(), evenement->attributes());
    propre.setCommitString(Normalise(evenement->commitString()), evenement->replacementStart(),
                           evenement->replacementLength());
    QPlainTextEdit::inputMethodEvent(&propre);
    evenement->setAccepted(propre.isAccepted());
}

void RichTextBox::mousePressEvent(QMouseEvent *evenement)
{
    QPlainTextEdit::mousePressEvent(evenement);
    evenement->accept();
    Q_EMIT MouseDown(evenement->button(), evenement->globalPosition().toPoint());
}

void RichTextBox::contextMenuEvent(QContextMenuEvent *evenement)
{
    if (evenement->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT MouseDown(Qt::RightButton, viewport()->mapToGlobal(cursorRect().bottomLeft()));
    evenement->accept();
}

QMimeData *RichTextBox::createMimeDataFromSelection() const
{
    const QString texte = SelText();
    auto *copie = new QMimeData;
    copie->setText(texte);
    if (!m_formatCopie.isEmpty())
        copie->setData(m_formatCopie, OctetsEn1252(texte));
    return copie;
}

bool RichTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    // A dropped file is handled by the main window; the pane must not insert its path.
    return !source->hasUrls() && (source->hasText() || source->hasFormat(m_formatCopie));
}

void RichTextBox::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly())
        return;
    const bool deLaMaison = source->hasFormat(m_formatCopie);
    setSelText(deLaMaison ? TexteDe1252(source->data(m_formatCopie)) : NormaliseEtranger(source->text()));
    ensureCursorVisible();
}

/// Replaces the whole text by texte, which must be normalised.
void RichTextBox::Remplace(const QString &texte, const QTextCharFormat &format)
{
    const SansAnnulation sansAnnulation(document());
    QTextCursor curseur(document());
    curseur.beginEditBlock();
    Vide(format);
    Insere(curseur, texte, format);
    curseur.endEditBlock();
    RevientAuDebut();
}

/// Empties the document inside an edit block of the caller. format: the look of the text that follows.
void RichTextBox::Vide(const QTextCharFormat &format)
{
    Q_EMIT Remplacement();
    document()->clear();
    m_finsDiverses = false;
    m_lignesAllegees = 0;
    QTextCursor(document()).setBlockCharFormat(format);
}

void RichTextBox::RevientAuDebut()
{
    setTextCursor(QTextCursor(document()));
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

/// Frees the layouts of lines that have scrolled out of sight during a long reception. Qt keeps the layout of each line
/// that was ever shown, which needs many times the memory of its text, and frees it only when the layout object is
/// replaced. This happens each time the text has grown by a quarter, so that the cost stays proportional to the text.
void RichTextBox::AllegeMiseEnPage()
{
    constexpr int PremierSeuil = 4096;
    constexpr int Part = 4;
    if (!isVisible() || blockCount() < m_lignesAllegees + m_lignesAllegees / Part + PremierSeuil)
        return;
    m_lignesAllegees = blockCount();
    document()->setDocumentLayout(new MiseEnPage(document()));
}

/// Inserts texte at curseur, in an edit block of the caller.
void RichTextBox::Insere(QTextCursor &curseur, const QString &texte, QTextCharFormat format)
{
    // Qt makes one separator of each CR LF, CR and LF, in the format of the insertion. So all lines up to the next
    // change of kind are inserted at once, and a text with one kind of line end is not even copied.
    qsizetype colonne = curseur.positionInBlock();
    for (qsizetype debut = 0; debut < texte.size(); colonne = 0) {
        const Troncon troncon = PremierTroncon(texte, debut, colonne);
        format.clearProperty(ProprieteFin);
        if (troncon.fin != FinDeLigne::CrLf) {
            format.setProperty(ProprieteFin, static_cast<int>(troncon.fin));
            m_finsDiverses = true;
        }
        const bool entier = debut == 0 && troncon.suite == texte.size();
        QString morceau = entier ? texte : texte.mid(debut, troncon.suite - debut);
        if (troncon.fin == FinDeLigne::Aucune)
            morceau += QChar::ParagraphSeparator;
        curseur.insertText(morceau, format);
        debut = troncon.suite;
    }
}

/// Joins a CR and a LF that the last edit has brought together into one line end.
void RichTextBox::RecolleFins()
{
    // After an undo nothing is joined: an edit now would discard what the operator can redo.
    if (!m_finsDiverses || document()->isRedoAvailable())
        return;
    const QScopedValueRollback<bool> muet(m_muet, true);
    for (const int couture : {m_coutureFin, m_coutureDebut}) {
        const QTextBlock vide = document()->findBlock(couture);
        if (vide.length() != 1 || !vide.previous().isValid() || !vide.next().isValid() ||
            FinAvant(vide) != FinDeLigne::Cr || FinAvant(vide.next()) != FinDeLigne::Lf)
            continue;
        const QTextCharFormat format = vide.charFormat();
        QTextCursor curseur(vide);
        curseur.setPosition(couture - 1);
        curseur.setPosition(couture + 1, QTextCursor::KeepAnchor);
        curseur.joinPreviousEditBlock();
        curseur.removeSelectedText();
        Insere(curseur, QStringLiteral("\r\n"), format);
        curseur.endEditBlock();
    }
}

FinDeLigne RichTextBox::FinAvant(const QTextBlock &bloc) const
{
    return m_finsDiverses ? static_cast<FinDeLigne>(bloc.charFormat().intProperty(ProprieteFin)) : FinDeLigne::CrLf;
}

/// Replaces each separator in brut by the line end that it stands for. brut: text of the document that begins in bloc.
QString RichTextBox::AvecFins(const QString &brut, QTextBlock bloc) const
{
    QString texte;
    texte.reserve(brut.size() + brut.count(QChar::ParagraphSeparator));
    qsizetype debut = 0;
    for (qsizetype fin = 0; (fin = brut.indexOf(QChar::ParagraphSeparator, debut)) >= 0; debut = fin + 1) {
        if (m_finsDiverses)
            bloc = bloc.next();
        texte.append(brut.constData() + debut, fin - debut).append(TexteDe(FinAvant(bloc)));
    }
    return texte.append(brut.constData() + debut, brut.size() - debut);
}

/// Number of positions at the end of the document that hold at least n characters. A long line has one more position
/// for each row that it continues in.
int RichTextBox::PositionsPour(qsizetype n)
{
    return static_cast<int>(n + n / LongueurRang + 1);
}

/// The text of the last positions, or of the whole document when it has fewer. It is read without a cursor, since
/// placing one would lay out its line.
QString RichTextBox::Queue(int positions) const
{
    const int fin = FinDuDocument();
    const int debut = std::max(fin - positions, 0);
    QString brut;
    for (int position = debut; position < fin; ++position)
        brut += document()->characterAt(position);
    return AvecFins(brut, document()->findBlock(debut));
}

/// Converts a position of the document into the number of characters of Text() before it.
int RichTextBox::PlaceDe(int position) const
{
    QTextBlock bloc = document()->findBlock(position);
    if (!m_finsDiverses)
        return position + bloc.blockNumber();
    int place = position;
    for (; bloc.previous().isValid(); bloc = bloc.previous())
        place += static_cast<int>(TexteDe(FinAvant(bloc)).size()) - 1;
    return place;
}

/// Converts place, a number of characters of Text(), into a position of the document. apresFin: a place between CR and
/// LF gives the position behind that line end, otherwise the one before it.
int RichTextBox::PositionDe(int place, bool apresFin) const
{
    int reste = std::max(place, 0);
    for (QTextBlock bloc = document()->firstBlock();; bloc = bloc.next()) {
        const int longueur = bloc.length() - 1;
        const QTextBlock suivant = bloc.next();
        if (reste <= longueur || !suivant.isValid())
            return bloc.position() + std::min(reste, longueur);
        reste -= longueur;
        const int fin = static_cast<int>(TexteDe(FinAvant(suivant)).size());
        if (reste < fin)
            return suivant.position() - (apresFin ? 0 : 1);
        reste -= fin;
    }
}

/// The look of the character at a position of the document; at its end the look of the last character.
QTextCharFormat RichTextBox::FormatA(int position) const
{
    QTextCursor curseur(document());
    curseur.setPosition(std::min(position + 1, FinDuDocument()));
    QTextCharFormat format = curseur.charFormat();
    format.clearProperty(ProprieteFin);
    return format;
}

QTextCharFormat RichTextBox::Aspect() const
{
    const QTextCursor curseur = textCursor();
    return curseur.hasSelection() ? FormatA(curseur.selectionStart()) : curseur.charFormat();
}

QFont RichTextBox::Police() const
{
    return Aspect().font().resolve(document()->defaultFont());
}

void RichTextBox::Habille(QTextFormat::Property propriete, const QVariant &valeur)
{
    const QScopedValueRollback<bool> muet(m_muet, true);
    const SansAnnulation sansAnnulation(document());
    QTextCharFormat aspect;
    aspect.setProperty(propriete, valeur);
    // After the whole text was deleted, typed text takes its look from the first block.
    if (textCursor().selectionStart() == 0)
        QTextCursor(document()).mergeBlockCharFormat(aspect);
    mergeCurrentCharFormat(aspect);
}
