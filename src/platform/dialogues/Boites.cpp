#include "platform/dialogues/Boites.h"

#include "platform/controles/Clavier.h"
#include "platform/dialogues/FenetreAppelante.h"

#include <QDir>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QSpacerItem>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int MasqueIcone = 0x70;

QMessageBox::Icon Icone(int drapeaux)
{
    switch (drapeaux & MasqueIcone) {
    case Boite::Critique:
        return QMessageBox::Critical;
    case Boite::Question:
        return QMessageBox::Question;
    case Boite::Exclamation:
        return QMessageBox::Warning;
    case Boite::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

constexpr int LargeurMax = 760;    // pixels of a box; a longer line is broken
constexpr int IconeEtMarges = 110; // pixels

/// texte with invisible break points in each word too long for one line, such as a long file name. metrique: the box's
/// font; largeur: pixels of a line.
QString AvecCesures(const QString &texte, const QFontMetrics &metrique, int largeur)
{
    static const QRegularExpression motOuBlancs(QStringLiteral("\\S+|\\s+"));
    static const QRegularExpression signe(QStringLiteral("(\\X)"));
    QString coupe;
    for (auto piece = motOuBlancs.globalMatch(texte); piece.hasNext();) {
        QString mot = piece.next().captured();
        if (metrique.horizontalAdvance(mot) > largeur)
            mot.replace(signe, QStringLiteral("\\1\u200B")); // a space without width, which nobody sees
        coupe += mot;
    }
    return coupe;
}

/// Keeps Escape and the close button from a box.
class SansEchappatoire : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *evenement) override
    {
        const bool echap =
            evenement->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Escape;
        if (evenement->type() == QEvent::Close)
            evenement->ignore();
        return echap || evenement->type() == QEvent::Close;
    }
};

void Prepare(QMessageBox &boite, const QString &texte, int drapeaux, const QString &titre)
{
    boite.setObjectName(QStringLiteral("MsgBox"));
    boite.setWindowTitle(titre);
    boite.setIcon(Icone(drapeaux));
    boite.setTextFormat(Qt::PlainText);
    boite.setText(AvecCesures(PourAffichage(texte), boite.fontMetrics(), LargeurMax - IconeEtMarges));
    boite.setStandardButtons(QMessageBox::Ok);
    if ((drapeaux & Boite::OuiNon) != 0) {
        boite.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        boite.setDefaultButton((drapeaux & Boite::SecondBouton) != 0 ? QMessageBox::No : QMessageBox::Yes);
        boite.setEscapeButton(QMessageBox::No);
    }
    if ((drapeaux & Boite::ChoixExige) != 0)
        boite.installEventFilter(new SansEchappatoire(&boite));
    Elargit(boite);
}

/// Gives a box a button that shows details. Their pane has more room than the toolkit's, and the keyboard reaches it.
void MontreDetails(QMessageBox &boite, const QString &details)
{
    constexpr int hauteur = 200; // pixels
    boite.setDetailedText(PourAffichage(details));
    if (auto *const volet = boite.findChild<QTextEdit *>()) {
        volet->setFixedHeight(hauteur);
        volet->setFocusPolicy(Qt::StrongFocus);
    }
}

QPointer<QMessageBox> demande; // the question of DemandeSansAttendre(), while it stands

} // namespace

Suppleant &SuppleantBoites()
{
    static Suppleant suppleant;
    return suppleant;
}

void Elargit(QMessageBox &boite)
{
    constexpr int boutonsDuCadre = 140;
    const QFontMetrics metrique = boite.fontMetrics();
    int largeur = metrique.horizontalAdvance(boite.windowTitle()) + boutonsDuCadre;
    const QStringList lignes = boite.text().split(u'\n');
    for (const QString &ligne : lignes)
        largeur = std::max(largeur, std::min(metrique.horizontalAdvance(ligne) + IconeEtMarges, LargeurMax));
    auto *const grille = qobject_cast<QGridLayout *>(boite.layout());
    grille->addItem(new QSpacerItem(largeur, 0, QSizePolicy::Minimum, QSizePolicy::Minimum), grille->rowCount(), 0, 1,
                    grille->columnCount());
}

Reponse MsgBox(const QString &texte, int drapeaux, const QString &titre, const QString &details)
{
    const bool remplace = demande != nullptr;
    RetireDemande();
    if (SuppleantBoites().message)
        return SuppleantBoites().message(texte, drapeaux, titre);
    QMessageBox boite(FenetreAppelante());
    MontreDetails(boite, details);
    Prepare(boite, texte, drapeaux, titre);
    if (remplace)
        RetientTouchesSansCoup(&boite);
    const int choix = boite.exec();
    if ((drapeaux & Boite::OuiNon) == 0)
        return Reponse::Ok;
    return choix == QMessageBox::Yes ? Reponse::Oui : Reponse::Non;
}

bool Confirme(const QString &texte, int drapeaux, const QString &titre)
{
    return MsgBox(texte, drapeaux | Boite::OuiNon, titre) == Reponse::Oui;
}

void DemandeSansAttendre(QWidget &fenetre, const QString &texte, int drapeaux, const QString &titre,
                         const std::function<void()> &siOui)
{
    if (demande != nullptr)
        return;
    demande = new QMessageBox(&fenetre);
    demande->setAttribute(Qt::WA_DeleteOnClose);
    Prepare(*demande, texte, drapeaux | Boite::OuiNon, titre);
    QObject::connect(demande, &QDialog::finished, &fenetre, [siOui](int choix) {
        demande.clear();
        if (choix == QMessageBox::Yes)
            siOui();
    });
    demande->open();
}

void RetireDemande()
{
    if (demande == nullptr)
        return;
    QWidget *const dessous = demande->parentWidget();
    demande->reject();
    RetientTouchesSansCoup(dessous);
}

QString InputBox(const QString &invite, const QString &titre, const QString &valeur)
{
    if (SuppleantBoites().saisie)
        return SuppleantBoites().saisie(invite, titre, valeur);
    constexpr int largeur = 440; // pixels; a longer prompt takes more lines
    QInputDialog boite(FenetreAppelante());
    boite.setObjectName(QStringLiteral("InputBox"));
    boite.setWindowTitle(titre);
    // A label takes a single ampersand for the mark of a shortcut; the name of a folder may hold one.
    const QString lignes = AvecCesures(PourAffichage(invite), boite.fontMetrics(), largeur);
    boite.setLabelText(QString(lignes).replace(u'&', QLatin1String("&&")));
    boite.setTextValue(valeur);
    auto *const texte = boite.findChild<QLabel *>();
    texte->setTextFormat(Qt::PlainText);
    texte->setWordWrap(true);
    texte->setMinimumWidth(largeur);
    auto *const saisie = boite.findChild<QLineEdit *>();
    const auto debut = static_cast<int>(valeur.lastIndexOf(QDir::separator())) + 1;
    // This has to wait until the box is shown, since showing it selects the whole text.
    QTimer::singleShot(0, saisie, [=] { saisie->setSelection(debut, saisie->maxLength()); });
    return boite.exec() == QDialog::Accepted ? boite.textValue() : QString();
}

QString PourAffichage(const QString &texte)
{
    QString lignes = texte;
    return lignes.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}
