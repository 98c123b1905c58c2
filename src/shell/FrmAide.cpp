#include "shell/FrmAide.h"

#include "donnees/Chemins.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/dialogues/Boites.h"
#include "shell/FrmPrinc.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QWindow>

#include <algorithm>

namespace {

constexpr Texte3 Manuel{u"DORVANEL.HLP", u"DORVANEL_EN.HLP", u"DORVANEL_ES.HLP"};
constexpr Texte3 TitreAide{u"Aide de Dorvanel Pro", u"Dorvanel Pro help", u"Ayuda de Dorvanel Pro"};
constexpr Texte3 ManuelAbsent{u"Le fichier d'aide n'existe pas :\r", u"The help file does not exist:\r",
                              u"El fichero de ayuda no existe:\r"};

constexpr Texte3 Precedent{u"&Précédent", u"&Back", u"&Atrás"};
constexpr Texte3 Suivant{u"&Suivant", u"&Forward", u"A&delante"};
constexpr Texte3 Rechercher{u"&Rechercher :", u"&Search:", u"&Buscar:"};
constexpr Texte3 ResultatPrecedent{u"Résultat précédent (Maj+F3)", u"Previous match (Shift+F3)",
                                   u"Resultado anterior (Mayús+F3)"};
constexpr Texte3 ResultatSuivant{u"Résultat suivant (F3)", u"Next match (F3)", u"Resultado siguiente (F3)"};
constexpr Texte3 Introuvable{u"Introuvable", u"Not found", u"No encontrado"};
constexpr Texte3 Sommaire{u"Sommaire", u"Contents", u"Índice"};

/// Letters that count as the same in a search: "reception" finds "réception".
constexpr const char16_t *LettresEgales[] = {u"aàâäá", u"cç", u"eéèêë", u"iîïí", u"nñ", u"oôöó", u"uùûüú"};

/// The pattern that finds cherche, with any blanks or line ends between its words.
QRegularExpression Motif(const QString &cherche)
{
    QString motif;
    for (const QChar lettre : cherche.simplified()) {
        QString classe = QRegularExpression::escape(QString(lettre));
        for (const char16_t *const egales : LettresEgales)
            if (QString::fromUtf16(egales).contains(lettre, Qt::CaseInsensitive))
                classe = u'[' + QString::fromUtf16(egales) + u']';
        motif += lettre == u' ' ? QStringLiteral("\\s+") : classe;
    }
    return QRegularExpression(motif, QRegularExpression::CaseInsensitiveOption |
                                         QRegularExpression::UseUnicodePropertiesOption);
}

/// The id of a heading. The toolkit keeps it in the format of its first letters.
QString Ancre(const QTextBlock &bloc)
{
    return bloc.begin().atEnd() ? QString() : bloc.begin().fragment().charFormat().anchorNames().value(0);
}

/// voulu, moved so that a stretch of longueur stays on the screen. A stretch longer than the screen begins where the
/// screen does.
int Dans(int debutEcran, int longueurEcran, int voulu, int longueur)
{
    return std::max(debutEcran, std::min(voulu, debutEcran + longueurEcran - longueur));
}

/// Puts fenetre beside the window that it explains, on the side with more room, narrower if both can then be seen, and
/// within the screen together with its frame. It stays above the other window, which therefore goes to the screen's
/// edge when it would be hidden. Before it is shown its frame is unknown and taken to be as large as the other
/// window's.
void PlaceACote(QWidget *fenetre, QWidget *appelante)
{
    constexpr int largeurMin = 890; // pixels; below this the pictures would be cut, so it covers the other window
    const QRect ecran = appelante->screen()->availableGeometry();
    const QRect occupe = appelante->frameGeometry();
    const QWidget *const encadree = fenetre->isVisible() ? fenetre : appelante;
    const QSize cadre = encadree->frameSize() - encadree->size();
    const int gauche = occupe.left() - ecran.left();
    const int droite = ecran.right() - occupe.right();
    const int largeur = std::min(std::max({gauche, droite, largeurMin}), ecran.width());
    // Its captions may need more room; the toolkit would then enlarge the window as it is shown.
    fenetre->resize(
        fenetre->size().boundedTo(QSize(largeur, ecran.height()) - cadre).expandedTo(fenetre->minimumSizeHint()));
    const QSize entier = fenetre->size() + cadre;
    const int x = droite >= gauche ? occupe.right() + 1 : occupe.left() - entier.width();
    const auto place = [&](int debut) {
        return QRect({Dans(ecran.left(), ecran.width(), debut, entier.width()),
                      Dans(ecran.top(), ecran.height(), occupe.top(), entier.height())},
                     entier);
    };
    QRect pris = place(x);
    if (pris.contains(occupe)) {
        appelante->move(ecran.left(), occupe.top());
        pris = place(ecran.left() + occupe.width());
    }
    fenetre->move(pris.topLeft());
}

/// Path of the manual: in the application folder, or in the folder of the program when it is only there.
QString CheminManuel()
{
    const QString voulu = AjouteAntislash(Reglages.DosAppli) + Texte(Manuel);
    const QString livre = AjouteAntislash(QCoreApplication::applicationDirPath()) + Texte(Manuel);
    return !QFileInfo::exists(voulu) && QFileInfo::exists(livre) ? livre : voulu;
}

/// Section of the manual for dialogs known by their class only.
constexpr struct
{
    const char *classe;
    const char16_t *page;
} PagesDesClasses[] = {
    {"QAbstractPrintDialog", u"impression"}, {"DialogueImprimante", u"impression"}, {"QFontDialog", u"impression"}};

/// Section of the manual on what a file dialog of the main window asks for, by the ending in its list.
constexpr struct
{
    const char16_t *fin;
    const char16_t *page;
} PagesDesFichiers[] = {{u"*.par", u"configurer"}, {u"*.mac", u"ConfMac"}};

/// That section, "" for a program.
QString PageDesFichiers(const QFileDialog &dialogue)
{
    const QString filtres = dialogue.nameFilters().join(u'|');
    for (const auto &[fin, page] : PagesDesFichiers)
        if (filtres.contains(QString::fromUtf16(fin), Qt::CaseInsensitive))
            return QString::fromUtf16(page);
    return {};
}

/// Section of the manual for a window: that of the tab shown, or its own, or for a dialog of the toolkit that of the
/// window which opened it.
QString PageDe(const QWidget *fenetre)
{
    const auto enfants = fenetre->findChildren<QWidget *>();
    for (const QWidget *enfant : enfants) {
        QString page = enfant->property("pageAide").toString();
        if (enfant->isVisible() && !page.isEmpty())
            return page;
    }
    for (const auto &[classe, page] : PagesDesClasses)
        if (fenetre->inherits(classe))
            return QString::fromUtf16(page);
    const QWidget *const parent = fenetre->parentWidget();
    const bool nom = fenetre->inherits("QInputDialog");
    if (nom && parent == frmPrinc)
        return QStringLiteral("explorateur");
    if (const auto *const fichiers = qobject_cast<const QFileDialog *>(fenetre); fichiers && parent == frmPrinc) {
        if (QString page = PageDesFichiers(*fichiers); !page.isEmpty())
            return page;
    }
    const bool demande = nom || fenetre->inherits("QFileDialog") || fenetre->inherits("QColorDialog");
    return demande && parent != nullptr ? PageDe(parent) : fenetre->objectName();
}

class ToucheF1 : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::KeyPress || !objet->isWidgetType() || !QApplication::activeModalWidget())
            return false;
        const auto *const touche = static_cast<QKeyEvent *>(evenement);
        if (touche->key() != Qt::Key_F1 || touche->modifiers() != Qt::NoModifier)
            return false;
        Mnu_Aide();
        return true;
    }
};

} // namespace

void Mnu_Aide()
{
    static QPointer<FrmAide> ouverte; // the one help window
    if (TexteChoisi(Manuel).isNull())
        return;
    const QString manuel = CheminManuel();
    if (!QFileInfo(manuel).isFile()) {
        MsgBox(Texte(ManuelAbsent) + manuel, Boite::Exclamation, Texte(TitreAide));
        return;
    }
    // A modal dialog blocks all other windows but its children, so the help becomes one of them.
    QWidget *const modale = QApplication::activeModalWidget();
    QWidget *const appelante = modale == nullptr ? frmPrinc : modale;
    if (ouverte != nullptr && ouverte->parent() != appelante)
        ouverte->close();
    if (ouverte == nullptr || ouverte->parent() != appelante || !ouverte->isVisible())
        ouverte = new FrmAide(appelante);
    ouverte->Montre(manuel, modale == nullptr ? QString() : PageDe(modale));
}

void BrancheAide()
{
    qApp->installEventFilter(new ToucheF1(frmPrinc));
}

FrmAide::FrmAide(QWidget *parent)
    : QDialog(parent, Qt::Window)
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    Command1->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    Command2->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    disposition_aide->setStretchFactor(1, 1);
    disposition_aide->setSizes({TreeView1->minimumWidth(), width()}); // the page takes the rest
    PoseRaccourcis();
    connect(Command1, &QPushButton::clicked, TextBrowser1, &QTextBrowser::backward);
    connect(Command2, &QPushButton::clicked, TextBrowser1, &QTextBrowser::forward);
    connect(TextBrowser1, &QTextBrowser::backwardAvailable, Command1, &QPushButton::setEnabled);
    connect(TextBrowser1, &QTextBrowser::forwardAvailable, Command2, &QPushButton::setEnabled);
    connect(TextBrowser1->verticalScrollBar(), &QScrollBar::valueChanged, this, &FrmAide::SuitLecture);
    TextBrowser1->viewport()->installEventFilter(this);
    const auto vaALaLigne = [this](const QTreeWidgetItem *ligne) { Va(ligne->data(0, Qt::UserRole).toString()); };
    connect(TreeView1, &QTreeWidget::itemClicked, this, vaALaLigne);
    connect(TreeView1, &QTreeWidget::itemActivated, this, vaALaLigne);
    connect(Text1, &QLineEdit::textChanged, this, &FrmAide::Text1_Change);
    connect(Text1, &QLineEdit::returnPressed, Command4, &QToolButton::click);
    connect(Command3, &QToolButton::clicked, this, [this] { MontreResultat(m_resultat - 1); });
    connect(Command4, &QToolButton::clicked, this, [this] { MontreResultat(m_resultat + 1); });
}

void FrmAide::PoseRaccourcis()
{
    const auto bouton = [this](QKeySequence::StandardKey touche, QAbstractButton *presse) {
        connect(new QShortcut(touche, this), &QShortcut::activated, presse, [presse] { presse->click(); });
    };
    bouton(QKeySequence::Back, Command1);
    bouton(QKeySequence::Forward, Command2);
    bouton(QKeySequence::FindPrevious, Command3);
    bouton(QKeySequence::FindNext, Command4);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, Text1, [this] {
        Text1->setFocus();
        Text1->selectAll();
    });
}

void FrmAide::Montre(const QString &manuel, const QString &section)
{
    PoseTextes();
    const QUrl source = QUrl::fromLocalFile(manuel);
    if (TextBrowser1->source().adjusted(QUrl::RemoveFragment) != source) {
        TextBrowser1->setSource(source, QTextDocument::HtmlResource);
        TextBrowser1->clearHistory();
        DresseSommaire();
        Text1_Change();
    }
    if (!section.isEmpty())
        Va(section);
    const bool premiere = !isVisible();
    if (premiere) {
        TextBrowser1->clearHistory(); // "back" stops at the page that it opens with
        PlaceACote(this, parentWidget());
        TreeView1->setFocus();
    }
    show();
    if (premiere)
        windowHandle()->installEventFilter(this);
    raise();
    activateWindow();
}

void FrmAide::PoseTextes()
{
    PoseTexte(this, TitreAide);
    PoseTexte(Command1, Precedent);
    PoseTexte(Command2, Suivant);
    PoseTexte(Label1, Rechercher);
    PoseBulle(Command3, Texte(ResultatPrecedent));
    PoseBulle(Command4, Texte(ResultatSuivant));
    TreeView1->setAccessibleName(Texte(Sommaire));
    TextBrowser1->setAccessibleName(Texte(TitreAide));
}

/// Fills the contents with the headings of the text. A heading goes below the last one of a higher level.
void FrmAide::DresseSommaire()
{
    m_titres.clear();
    TreeView1->clear();
    QTreeWidgetItem *parents[7] = {};
    for (QTextBlock bloc = TextBrowser1->document()->begin(); bloc.isValid(); bloc = bloc.next()) {
        const int niveau = bloc.blockFormat().headingLevel();
        if (niveau < 1 || niveau > 6)
            continue;
        QTreeWidgetItem *const parent = parents[niveau - 1];
        auto *const ligne = parent == nullptr ? new QTreeWidgetItem(TreeView1) : new QTreeWidgetItem(parent);
        ligne->setText(0, bloc.text());
        ligne->setToolTip(0, bloc.text()); // a long heading is cut in the contents
        ligne->setData(0, Qt::UserRole, Ancre(bloc));
        std::fill(std::begin(parents) + niveau, std::end(parents), ligne);
        m_titres.append({bloc.position(), ligne});
    }
    TreeView1->expandToDepth(0);
}

/// Selects in the contents the heading that begins the visible page, or the last one above it.
void FrmAide::SuitLecture()
{
    constexpr int unTitre = 24; // pixels; about the height of a heading
    if (m_retaille)
        return;
    m_lecture = TextBrowser1->cursorForPosition({0, 0}).position();
    Designe(TextBrowser1->cursorForPosition({0, unTitre}).position());
}

/// Keeps the reader's place when the size changes: another width breaks the lines elsewhere. When the window is shown,
/// it is placed once more, since its frame is known only now.
bool FrmAide::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet == windowHandle() && evenement->type() == QEvent::Expose) {
        objet->removeEventFilter(this);
        QMetaObject::invokeMethod(
            this, [this] { PlaceACote(this, parentWidget()); }, Qt::QueuedConnection);
    }
    if (objet == TextBrowser1->viewport() && evenement->type() == QEvent::Resize && !m_retaille) {
        m_retaille = true;
        QMetaObject::invokeMethod(this, &FrmAide::RemetLecture, Qt::QueuedConnection); // after the new line breaks
    }
    return QDialog::eventFilter(objet, evenement);
}

void FrmAide::RemetLecture()
{
    QTextCursor lecture(TextBrowser1->document());
    lecture.setPosition(m_lecture);
    QScrollBar *const ascenseur = TextBrowser1->verticalScrollBar();
    ascenseur->setValue(ascenseur->value() + TextBrowser1->cursorRect(lecture).top());
    m_retaille = false;
}

void FrmAide::Designe(int position)
{
    const auto suivant =
        std::find_if(m_titres.cbegin(), m_titres.cend(), [=](const Titre &titre) { return titre.position > position; });
    if (suivant != m_titres.cbegin())
        TreeView1->setCurrentItem(std::prev(suivant)->ligne);
}

void FrmAide::Va(const QString &section)
{
    for (const Titre &titre : m_titres) {
        if (titre.ligne->data(0, Qt::UserRole).toString() != section)
            continue;
        QUrl lieu = TextBrowser1->source();
        lieu.setFragment(section);
        TextBrowser1->setSource(lieu);
        TreeView1->setCurrentItem(titre.ligne);
        m_lecture = titre.position; // even when the end of the text keeps it below the top of the page
    }
}

void FrmAide::Text1_Change()
{
    const QRegularExpression motif = Motif(Text1->text());
    m_resultats.clear();
    if (!motif.pattern().isEmpty()) {
        for (QTextCursor trouve = TextBrowser1->document()->find(motif); !trouve.isNull();
             trouve = TextBrowser1->document()->find(motif, trouve))
            m_resultats << trouve;
    }
    const qsizetype nombre = m_resultats.size();
    Command3->setEnabled(nombre > 0);
    Command4->setEnabled(nombre > 0);
    Label2->setText(nombre > 0 || Text1->text().isEmpty() ? QString() : Texte(Introuvable));
    const int lecture = PositionLecture();
    qsizetype premier = 0;
    while (premier < nombre && m_resultats[premier].selectionStart() < lecture)
        ++premier;
    MontreResultat(premier);
}

/// Where the search begins: at the match shown if it is visible, else at the top of the visible page.
int FrmAide::PositionLecture() const
{
    const bool voit = TextBrowser1->viewport()->rect().intersects(TextBrowser1->cursorRect());
    return voit ? TextBrowser1->textCursor().position() : TextBrowser1->cursorForPosition({0, 0}).position();
}

/// Shows a match. numero: from 0; -1 is the last match, and the number behind the last match is the first one.
void FrmAide::MontreResultat(qsizetype numero)
{
    const qsizetype nombre = m_resultats.size();
    m_resultat = nombre == 0 ? 0 : (numero + nombre) % nombre;
    MarqueResultats();
    if (nombre == 0)
        return;
    Label2->setText(QStringLiteral("%1 / %2").arg(m_resultat + 1).arg(nombre));
    QTextCursor debut = m_resultats[m_resultat];
    debut.setPosition(debut.selectionStart()); // without a selection, which would hide the mark
    TextBrowser1->setTextCursor(debut);
    // The match goes to a quarter of the page's height, so that the text around it can be read.
    QScrollBar *const ascenseur = TextBrowser1->verticalScrollBar();
    ascenseur->setValue(ascenseur->value() + TextBrowser1->cursorRect().top() - TextBrowser1->viewport()->height() / 4);
    Designe(debut.position());
}

/// Marks all matches, the one shown more strongly; readable on light and dark themes.
void FrmAide::MarqueResultats()
{
    QList<QTextEdit::ExtraSelection> marques;
    for (qsizetype i = 0; i < m_resultats.size(); ++i) {
        QTextCharFormat surligne;
        surligne.setForeground(Qt::black);
        surligne.setBackground(i == m_resultat ? QColor(255, 150, 50) : QColor(255, 224, 120));
        marques.append({m_resultats[i], surligne});
    }
    TextBrowser1->setExtraSelections(marques);
}
