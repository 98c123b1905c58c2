#include "Operateur.h"

#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int Patience = 30000; // milliseconds without a gesture before a test counts as hung

void Echec(const QString &message, const Operateur::Lieu &ou)
{
    QTest::qFail(qPrintable(message), ou.file_name(), static_cast<int>(ou.line()));
}

bool Egal(const QString &lu, const QString &attendu, const char *quoi, const Operateur::Lieu &ou)
{
    return QTest::qCompare(lu, attendu, quoi, "foretold", ou.file_name(), static_cast<int>(ou.line()));
}

QString Decrit(const QWidget *fenetre)
{
    const auto *const boite = qobject_cast<const QMessageBox *>(fenetre);
    return QStringLiteral("%1 \"%2\" %3")
        .arg(fenetre->objectName(), fenetre->windowTitle(), boite ? boite->text() : QString());
}

int Drapeaux(const QMessageBox &boite)
{
    const int icones[] = {0, Boite::Information, Boite::Exclamation, Boite::Critique, Boite::Question};
    const int boutons = boite.standardButtons() == (QMessageBox::Yes | QMessageBox::No) ? Boite::OuiNon : 0;
    const bool second = boite.defaultButton() != nullptr && boite.defaultButton() == boite.button(QMessageBox::No);
    return icones[boite.icon()] + boutons + (second ? Boite::SecondBouton : 0);
}

/// The menu that holds an entry or a submenu; none for the menus of the bar.
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

Operateur::Operateur()
{
    constexpr int pas = 2; // milliseconds
    QObject::connect(&m_yeux, &QTimer::timeout, &m_yeux, [this] { Regarde(); });
    m_yeux.start(pas);
    m_dernierGeste.start();
}

Operateur::~Operateur()
{
    for (const Attente &attente : m_abandon ? std::deque<Attente>() : m_attentes)
        Echec(QStringLiteral("never came: ") + attente.fenetre, attente.ou);
}

void Operateur::Repond(QAnyStringView titre, QAnyStringView texte, int drapeaux, QMessageBox::StandardButton bouton,
                       Lieu ou)
{
    Fait(
        "MsgBox",
        [this, titre = titre.toString(), texte = PourAffichage(texte.toString()), drapeaux, bouton,
         ou](QWidget &fenetre) {
            auto &boite = dynamic_cast<QMessageBox &>(fenetre);
            Egal(boite.windowTitle(), titre, "title", ou);
            Egal(boite.text(), texte, "text", ou);
            QTest::qCompare(Drapeaux(boite), drapeaux, "icon and buttons", "foretold", ou.file_name(),
                            static_cast<int>(ou.line()));
            if (QAbstractButton *const presse = boite.button(bouton))
                presse->click();
            else
                Etonne(&boite);
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
        "CommonDialog",
        [chemin = chemin.toString()](QWidget &fenetre) {
            fenetre.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(chemin);
            QMetaObject::invokeMethod(&fenetre, "accept");
        },
        {}, ou);
}

void Operateur::Presse(QAnyStringView fenetre, QAnyStringView bouton, Condition quand, Lieu ou)
{
    Fait(
        fenetre,
        [bouton = bouton.toString(), ou](QWidget &ouverte) {
            auto *const presse = ouverte.findChild<QAbstractButton *>(bouton);
            if (presse == nullptr || !presse->isVisible() || !presse->isEnabled())
                Echec(QStringLiteral("cannot be pressed: ") + bouton, ou);
            else
                presse->click();
        },
        std::move(quand), ou);
}

void Operateur::Saisit(QAnyStringView fenetre, QAnyStringView saisie, QAnyStringView texte, Lieu ou)
{
    Fait(
        fenetre,
        [saisie = saisie.toString(), texte = texte.toString()](QWidget &ouverte) {
            ouverte.findChild<QLineEdit *>(saisie)->setText(texte);
        },
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

void Operateur::Menu(QAnyStringView entree, Lieu ou)
{
    if (Offre(entree))
        frmPrinc->findChild<QAction *>(entree.toString())->trigger();
    else
        Echec(QStringLiteral("not offered: ") + entree.toString(), ou);
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
        Echec(QStringLiteral("disabled: ") + bouton->objectName(), ou);
}

QString Operateur::Lu(QAnyStringView controle)
{
    const QWidget *const fenetre = QApplication::activeModalWidget();
    const QWidget *const lu = fenetre == nullptr ? nullptr : fenetre->findChild<QWidget *>(controle.toString());
    return lu == nullptr ? QString() : lu->property("text").toString();
}

void Operateur::Regarde()
{
    QWidget *const fenetre = QApplication::activeModalWidget();
    if (fenetre == nullptr || m_gesteEnRoute)
        return;
    const bool fige = m_dernierGeste.hasExpired(Patience);
    if (m_abandon)
        QMetaObject::invokeMethod(fenetre, "reject", Qt::QueuedConnection);
    else if (!fige && !m_attentes.empty() && m_attentes.front().fenetre == fenetre->objectName())
        Agit(fenetre);
    else if (fige || (!m_connues.contains(fenetre) && !Annoncee(*fenetre)))
        Etonne(fenetre);
}

/// A dialog may be on the screen for a moment before the box comes that it asks first.
bool Operateur::Annoncee(const QWidget &fenetre) const
{
    return !fenetre.inherits("QMessageBox") &&
           std::any_of(m_attentes.begin(), m_attentes.end(),
                       [&fenetre](const Attente &attente) { return attente.fenetre == fenetre.objectName(); });
}

/// The gesture runs from the event loop and not from the eyes' timer: it may open the next window, and the eyes must
/// see it.
void Operateur::Agit(QWidget *fenetre)
{
    m_connues.removeAll(nullptr);
    m_connues << fenetre;
    if (const Condition &quand = m_attentes.front().quand; quand && !quand())
        return;
    m_gesteEnRoute = true;
    const Geste geste = m_attentes.front().geste;
    m_attentes.pop_front();
    QMetaObject::invokeMethod(
        fenetre,
        [this, geste, fenetre] {
            m_gesteEnRoute = false;
            m_dernierGeste.restart();
            geste(*fenetre);
            m_abandon = m_abandon || QTest::currentTestFailed();
        },
        Qt::QueuedConnection);
}

void Operateur::Etonne(QWidget *fenetre)
{
    m_abandon = true;
    const QString attendue = m_attentes.empty() ? QStringLiteral("nothing") : m_attentes.front().fenetre;
    Echec(QStringLiteral("unexpected: %1; foretold: %2").arg(Decrit(fenetre), attendue),
          m_attentes.empty() ? Lieu::current() : m_attentes.front().ou);
    QMetaObject::invokeMethod(fenetre, "reject", Qt::QueuedConnection);
}
