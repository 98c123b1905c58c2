#include "comconfig/FrmCaract.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/PageCode1252.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/dialogues/Boites.h"

#include <QKeyEvent>

namespace {

constexpr int NombreCaracteres = 128;
constexpr int ParRangee = 16; // codes with the same first hexadecimal digit, as in printed tables
constexpr int RangeesControle = 2;
constexpr int Stx = 2;
constexpr int Etx = 3;

// Captions of the buttons for the codes 0 to 32; the chain's label is made of them. The names of 30 and 31 are swapped,
// and stay so because stored labels hold them. A button's code is its place, whatever its caption.
constexpr const char16_t *Legendes[] = {u"Nul", u"soh",  u"stx", u"etx", u"eot", u"enq", u"ack", u"bel", u"bs",
                                        u"ht",  u"LF",   u"vt",  u"ff",  u"CR",  u"so",  u"si",  u"dle", u"Xon",
                                        u"dc2", u"Xoff", u"dc4", u"nak", u"syn", u"etb", u"Can", u"em",  u"eof",
                                        u"Esc", u"fs",   u"gs",  u"us",  u"rs",  u"Esp"};

constexpr Texte3 AideTitre{u"Caractère personnalisé", u"Personalized character", u"Carácter personalizado"};
constexpr Texte3 AideTexte{u"Ajout d'un caractère personnalisé.\r\n\r\n"
                           u"1 - Coller ou tapez votre caractère personnalisé dans la zone de texte.\r\n"
                           u"Vous pouvez taper le code ANSI du caractère. (ALT + Code)\r\n"
                           u"Un seul caractère peut être inséré à la fois.\r\n\r\n"
                           u"2 - Cliquez sur le bouton <Appliquer...>",
                           u"Addition of a personalized character.\r\n\r\n"
                           u"1 - Paste or type your character personalized in the zone of text.\r\n"
                           u"You can type code ANSI of the character. (ALT + Code)\r\n"
                           u"Only one character can be inserted at the same time.\r\n\r\n"
                           u"2 - Click on the button <Apply...>",
                           u"Adición de un carácter personalizado.\r\n\r\n"
                           u"1 - Clavar o mecanografían su carácter personalizado en la zona de texto.\r\n"
                           u"Pueden mecanografiar el código ANSI del carácter. (ALT + Código)\r\n"
                           u"Un único carácter puede insertarse a la vez.\r\n\r\n"
                           u"2 - Presione el botón <Aplicarse...>"};

constexpr Texte3 HorsPage{u"Ce caractère n'existe pas sur la ligne série (page de codes 1252).",
                          u"This character does not exist on the serial line (code page 1252).",
                          u"Este carácter no existe en la línea serie (página de códigos 1252)."};

/// The caption of the button of a code, which is also added to the label. A "&" is doubled, since a caption takes a
/// single one for the mark of a shortcut.
QString Legende(int code)
{
    if (code < static_cast<int>(std::size(Legendes)))
        return QString::fromUtf16(Legendes[code]);
    return code == '&' ? QStringLiteral("&&") : QString(QChar(code));
}

/// The tool tip: the code as manuals write it, decimal and hexadecimal, and the name of an invisible character.
QString Bulle(int code)
{
    constexpr int base = 16;
    const QString hexa = QStringLiteral("%1").arg(code, 2, base, QLatin1Char('0')).toUpper();
    return QStringLiteral("%1 = %2h  %3").arg(code).arg(hexa, NomCaractere(code)).trimmed();
}

/// The place in the table that a key leads to from the character code. It may lie outside the table; any other key
/// gives code itself.
int Voisin(int code, int touche)
{
    const int debut = code - code % ParRangee;
    switch (touche) {
    case Qt::Key_Left:
        return code - 1;
    case Qt::Key_Right:
        return code + 1;
    case Qt::Key_Up:
        return code - ParRangee;
    case Qt::Key_Down:
        return code + ParRangee;
    case Qt::Key_Home:
        return debut;
    case Qt::Key_End:
        return debut + ParRangee - 1;
    default:
        return code;
    }
}

} // namespace

FrmCaract::FrmCaract(TypeChaine type, const QString &libelle, QWidget *parent)
    : QDialog(parent)
    , m_type(type)
{
    setupUi(this);
    AppliqueLegendes(this);
    Form_Load();
    MontreLibelle(libelle);
    SuitChaine();
}

void FrmCaract::Form_Load()
{
    constexpr int lignes = 4; // room for a full chain
    Label1->ReserveLignes(lignes);
    Text1->setAccessibleName(Frame3->title());
    PoseCaracteres();
    connect(Text1, &QLineEdit::textChanged, this, [this](const QString &saisi) {
        SuitChaine();
        if (!saisi.isEmpty() && !EstEn1252(saisi.at(0)))
            RefuseCaractere();
        else
            RetireAvis();
    });
    connect(Command6, &QPushButton::clicked, this, &FrmCaract::Command6_Click);
    connect(Command7, &QPushButton::clicked, this, &FrmCaract::Command7_Click);
    connect(Command2, &QPushButton::clicked, this, &FrmCaract::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &FrmCaract::Command3_Click);
    connect(Command1, &QPushButton::clicked, this, &FrmCaract::accept);
}

/// Lays out the buttons: the control characters apart, above the printable ones.
void FrmCaract::PoseCaracteres()
{
    constexpr int ecart = 10; // pixels
    grille->setRowMinimumHeight(RangeesControle, ecart);
    for (int code = 0; code < NombreCaracteres; ++code) {
        const int rangee = code / ParRangee;
        grille->addWidget(CreeBouton(code), rangee < RangeesControle ? rangee : rangee + 1, code % ParRangee);
    }
    ChoisitBouton(Command4, Stx, QString(QChar(Stx)));
    ChoisitBouton(Command5, Etx, QString(QChar(Etx)));
    QList<QWidget *> ordre(m_caracteres.begin(), m_caracteres.end());
    ordre << Text1 << Command6 << Command7 << Command2 << Command3 << Command1;
    for (qsizetype i = 1; i < ordre.size(); ++i)
        setTabOrder(ordre[i - 1], ordre[i]);
    Command1->setFocus(); // a stray space bar must not add a character
}

QPushButton *FrmCaract::CreeBouton(int code)
{
    auto *const bouton = new QPushButton(Frame1);
    bouton->setObjectName(QStringLiteral("Car_%1").arg(code));
    // The width follows the captions and not the style's usual width: sixteen buttons stand in a row.
    bouton->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    bouton->installEventFilter(this);
    ChoisitBouton(bouton, code, Legende(code));
    return bouton;
}

bool FrmCaract::eventFilter(QObject *objet, QEvent *evenement)
{
    const auto code = m_caracteres.indexOf(qobject_cast<QPushButton *>(objet));
    if (evenement->type() != QEvent::KeyPress || code < 0 || code >= NombreCaracteres)
        return QDialog::eventFilter(objet, evenement);
    const int vers = Voisin(static_cast<int>(code), static_cast<QKeyEvent *>(evenement)->key());
    if (vers >= 0 && vers < NombreCaracteres)
        m_caracteres[vers]->setFocus(Qt::TabFocusReason);
    return vers != code;
}

/// Makes a click on bouton add the character code. An invisible character is shown by its name.
void FrmCaract::ChoisitBouton(QPushButton *bouton, int code, const QString &legende)
{
    constexpr int marge = 16; // pixels
    const bool muet = legende == QString(QChar(code)) && !legende.at(0).isPrint();
    bouton->setText(muet ? NomCaractere(code) : legende);
    bouton->setToolTip(Bulle(code));
    bouton->setMinimumWidth(bouton->fontMetrics().horizontalAdvance(QStringLiteral("Xoff")) + marge);
    connect(bouton, &QPushButton::clicked, this, [this, code, legende] { Ajoute(code, legende); });
    m_caracteres << bouton;
}

/// To be called when the codes are in the record.
void FrmCaract::MontreLibelle(const QString &libelle)
{
    Label1->MontreChaine(libelle, CaracteresDe(m_type));
}

int &FrmCaract::Nombre() const
{
    return ParamCom.*Chaines[m_type].nombre;
}

int &FrmCaract::Code(int position) const
{
    return CodeDe(Chaines[m_type], position);
}

void FrmCaract::Ajoute(int code, const QString &legende)
{
    if (Nombre() >= ConfigurationCom::CapaciteChaine)
        return;
    Code(++Nombre()) = code;
    m_precedent = Label1->text();
    Command3->setEnabled(true);
    MontreLibelle(m_precedent + legende);
    SuitChaine();
}

void FrmCaract::Command6_Click()
{
    const QString caractere = Text1->text();
    if (!EstEn1252(caractere.at(0)))
        return RefuseCaractere();
    Ajoute(static_cast<unsigned char>(OctetsEn1252(caractere).at(0)), caractere);
    Text1->clear();
}

void FrmCaract::RefuseCaractere()
{
    MontreAvis(Text1, Texte(HorsPage));
    Text1->selectAll();
}

/// Disables the characters while the chain is full. Enter adds the free character if there is one, and otherwise
/// closes.
void FrmCaract::SuitChaine()
{
    const bool place = Nombre() < ConfigurationCom::CapaciteChaine;
    for (QPushButton *const bouton : std::as_const(m_caracteres))
        bouton->setEnabled(place);
    Command6->setEnabled(place && !Text1->text().isEmpty());
    (Command6->isEnabled() ? Command6 : Command1)->setDefault(true);
}

void FrmCaract::Command3_Click()
{
    Command3->setEnabled(false);
    Code(Nombre()) = 0;
    --Nombre();
    MontreLibelle(m_precedent);
    SuitChaine();
}

/// Empties the chain. This cannot be undone.
void FrmCaract::Command2_Click()
{
    for (; Nombre() > 0; --Nombre())
        Code(Nombre()) = 0;
    MontreLibelle(QString());
    Command3->setEnabled(false);
    SuitChaine();
}

void FrmCaract::Command7_Click()
{
    MsgBox(Texte(AideTexte), Boite::Information, Texte(AideTitre));
}
