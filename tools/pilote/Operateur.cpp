#include "pilote/Operateur.h"

#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int Patience = 30000; // milliseconds without an action before a window counts as hung

/// Compares two texts. A box has invisible break points in long words, which do not count.
void Egal(QString lu, const QString &attendu, const char *quoi, const Operateur::Lieu &ou)
{
    lu.remove(QChar(0x200B));
    if (lu != attendu)
        Operateur::temoin.echec(QStringLiteral("%1 \"%2\"; foretold: \"%3\"").arg(QLatin1String(quoi), lu, attendu),
                                ou);
}

QString Decrit(const QWidget &fenetre)
{
    const auto *const boite = qobject_cast<const QMessageBox *>(&fenetre);
    return QStringLiteral("%1 \"%2\" %3")
        .arg(fenetre.objectName(), fenetre.windowTitle(), boite ? boite->text() : QString());
}

int Drapeaux(const QMessageBox &boite)
{
    const int icones[] = {0, Boite::Information, Boite::Exclamation, Boite::Critique, Boite::Question};
    const int boutons = boite.standardButtons() == (QMessageBox::Yes | QMessageBox::No) ? Boite::OuiNon : 0;
    const bool second = boite.defaultButton() != nullptr && boite.defaultButton() == boite.button(QMessageBox::No);
    return icones[boite.icon()] + boutons + (second ? Boite::SecondBouton : 0);
}

/// The menu that holds an entry or a submenu; nullptr for a menu of the menu bar.
QMenu *MenuDe(const QAction *entree)
{
    const auto menus = frmPrinc->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (menu->actions().contains(entree))
            return menu;
    }
    return nullptr;
}

} // namespace

constinit Operateur::Temoin Operateur::temoin{
    [](const QString &message, const Lieu &ou) { qFatal("%s:%u: %s", ou.fichier, ou.ligne, qPrintable(message)); },
    [] { return false; }};

Operateur::Operateur()
{
    QObject::connect(&m_yeux, &QTimer::timeout, &m_yeux, [this] { Regarde(); });
    m_yeux.start(1);
    m_dernierGeste.start();
}

Operateur::~Operateur()
{
    for (const BoiteAttendue &attente : temoin.enEchec() ? std::deque<BoiteAttendue>() : m_attentes)
        temoin.echec(QStringLiteral("never came: ") + attente.fenetre, attente.ou);
}

void Operateur::Repond(QAnyStringView titre, QAnyStringView texte, int drapeaux, QMessageBox::StandardButton bouton,
                       Lieu ou)
{
    Fait(
        "MsgBox",
        [titre = titre.toString(), texte = PourAffichage(texte.toString()), drapeaux, bouton, ou](QWidget &fenetre) {
            auto &boite = dynamic_cast<QMessageBox &>(fenetre);
            Egal(boite.windowTitle(), titre, "title", ou);
            Egal(boite.text(), texte, "text", ou);
            Egal(QString::number(Drapeaux(boite)), QString::number(drapeaux), "icon and buttons", ou);
            if (QAbstractButton *const presse = boite.button(bouton)) {
                presse->click();
            } else {
                temoin.echec(QStringLiteral("no such button: ") + Decrit(boite), ou);
                boite.reject();
            }
        },
        {}, ou);
}

void Operateur::LitErreur(int numero, const QString &texte, Lieu ou)
{
    Repond(QStringLiteral("Erreur N°:  %1Fermeture du port de communication").arg(numero), texte, Boite::Critique,
           QMessageBox::Ok, ou);
}

Operateur::Geste Operateur::Clique(QMessageBox::StandardButton bouton)
{
    return [bouton](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(bouton)->click(); };
}

void Operateur::Choisit(QAnyStringView chemin, Lieu ou)
{
    Fait(
        "CommonDialog", [chemin = chemin.toString()](QWidget &fenetre) { Choisit(fenetre, chemin); }, {}, ou);
}

void Operateur::Presse(QAnyStringView fenetre, QAnyStringView bouton, Condition quand, Lieu ou)
{
    Fait(
        fenetre, [bouton = bouton.toString(), ou](QWidget &ouverte) { Presse(ouverte, bouton, ou); }, std::move(quand),
        ou);
}

void Operateur::Saisit(QAnyStringView fenetre, QAnyStringView saisie, QAnyStringView texte, Lieu ou)
{
    Fait(
        fenetre,
        [saisie = saisie.toString(), texte = texte.toString()](QWidget &ouverte) { Saisit(ouverte, saisie, texte); },
        {}, ou);
}

void Operateur::Ferme(QAnyStringView fenetre, Condition quand, Lieu ou)
{
    Fait(
        fenetre, [](QWidget &ouverte) { ouverte.close(); }, std::move(quand), ou);
}

void Operateur::Fait(QAnyStringView fenetre, Geste geste, Condition quand, Lieu ou)
{
    m_attentes.push_back({fenetre.toString(), std::move(quand), std::move(geste), ou});
}

void Operateur::Habitude(QAnyStringView fenetre, Geste geste)
{
    m_habitudes[fenetre.toString()] = std::move(geste);
}

void Operateur::Presse(const QWidget &fenetre, QAnyStringView bouton, Lieu ou)
{
    auto *const presse = fenetre.findChild<QAbstractButton *>(bouton.toString());
    if (presse == nullptr || !presse->isVisible() || !presse->isEnabled())
        temoin.echec(QStringLiteral("cannot be pressed: ") + bouton.toString(), ou);
    else
        presse->click();
}

void Operateur::Saisit(const QWidget &fenetre, QAnyStringView saisie, QAnyStringView texte)
{
    fenetre.findChild<QLineEdit *>(saisie.toString())->setText(texte.toString());
}

void Operateur::Choisit(QWidget &dialogue, QAnyStringView chemin)
{
    Saisit(dialogue, "fileNameEdit", chemin);
    QMetaObject::invokeMethod(&dialogue, "accept");
}

void Operateur::Menu(QAnyStringView entree, Lieu ou)
{
    if (Offre(entree))
        frmPrinc->findChild<QAction *>(entree.toString())->trigger();
    else
        temoin.echec(QStringLiteral("not offered: ") + entree.toString(), ou);
}

bool Operateur::Offre(QAnyStringView entree)
{
    const QAction *etape = frmPrinc->findChild<QAction *>(entree.toString());
    for (QMenu *menu = MenuDe(etape); menu != nullptr; menu = MenuDe(etape)) {
        Q_EMIT menu->aboutToShow();
        if (!etape->isEnabled())
            return false;
        etape = menu->menuAction();
    }
    return etape->isEnabled();
}

void Operateur::Barre(int position, Lieu ou)
{
    auto *const bouton = qobject_cast<QToolButton *>(frmPrinc->Toolbar1->widgetForAction(frmPrinc->Bouton(position)));
    if (bouton->isEnabled())
        bouton->click();
    else
        temoin.echec(QStringLiteral("disabled: ") + bouton->objectName(), ou);
}

QString Operateur::Lu(QAnyStringView controle)
{
    const QWidget *const fenetre = QApplication::activeModalWidget();
    const QWidget *const lu = fenetre == nullptr ? nullptr : fenetre->findChild<QWidget *>(controle.toString());
    return lu == nullptr ? QString() : lu->property("text").toString();
}

/// The action runs from the event loop and not inside this timer's call: it may open a window, which this timer must
/// see.
void Operateur::Regarde()
{
    if (m_gesteEnRoute || QApplication::activeModalWidget() == nullptr)
        return;
    m_gesteEnRoute = true;
    QMetaObject::invokeMethod(
        &m_yeux,
        [this] {
            m_gesteEnRoute = false;
            if (QWidget *const devant = QApplication::activeModalWidget())
                Agit(*devant);
        },
        Qt::QueuedConnection);
}

void Operateur::Agit(QWidget &fenetre)
{
    if (temoin.enEchec()) {
        QMetaObject::invokeMethod(&fenetre, "reject");
        return;
    }
    if (AgitCommePredit(fenetre))
        return;
    if (const auto habitude = m_habitudes.find(fenetre.objectName()); habitude != m_habitudes.end())
        habitude->second(fenetre);
    else if (m_dernierGeste.hasExpired(Patience) || (!m_connues.contains(&fenetre) && !Annoncee(fenetre)))
        Etonne(fenetre);
}

/// Does the next expected action in the window. False when none is expected, or its condition is not met yet: a box
/// then waits, while in a dialog the habits go on.
bool Operateur::AgitCommePredit(QWidget &fenetre)
{
    if (m_attentes.empty() || m_attentes.front().fenetre != fenetre.objectName())
        return false;
    m_connues.removeAll(nullptr);
    m_connues << &fenetre;
    if (const Condition &quand = m_attentes.front().quand; quand && !quand())
        return fenetre.inherits("QMessageBox");
    const Geste geste = m_attentes.front().geste;
    m_attentes.pop_front();
    m_dernierGeste.restart();
    geste(fenetre);
    return true;
}

/// True when the window is expected later. A dialog may be visible for a moment before the box comes that it shows
/// first.
bool Operateur::Annoncee(const QWidget &fenetre) const
{
    return !fenetre.inherits("QMessageBox") &&
           std::any_of(m_attentes.begin(), m_attentes.end(),
                       [&fenetre](const BoiteAttendue &attente) { return attente.fenetre == fenetre.objectName(); });
}

void Operateur::Etonne(QWidget &fenetre)
{
    const QString attendue = m_attentes.empty() ? QStringLiteral("nothing") : m_attentes.front().fenetre;
    temoin.echec(QStringLiteral("unexpected: %1; foretold: %2").arg(Decrit(fenetre), attendue),
                 m_attentes.empty() ? Lieu::Ici() : m_attentes.front().ou);
    QMetaObject::invokeMethod(&fenetre, "reject");
}
