#include "locale/Legendes.h"

#include "locale/Langue.h"
#include "locale/TableLegendes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace {

// The entries of the language menu, by LangIndex.
constexpr Texte3 NomsLangues[] = {
    {u"Français", u"French", u"Francés"}, {u"Anglais", u"English", u"Inglés"}, {u"Espagnol", u"Spanish", u"Español"}};

constexpr char Donnee[] = "donnee"; // property of a control that shows data

constexpr const LegendesFenetre *Fenetres[] = {
    &LegendesFrmPrinc,  &LegendesApropos, &LegendesEm_Rc,      &LegendesRc_Fic,  &LegendesProp,
    &LegendesFrmCaract, &LegendesDosProg, &LegendesFrmConfDem, &LegendesConfMac, &LegendesJauTour,
};

/// Sets the caption of a control. Frames and menus keep it in the property "title", labels, buttons and menu entries in
/// "text", windows and toolbars in "windowTitle".
void EcritTitre(QObject *controle, const QString &texte)
{
    for (const char *const propriete : {"title", "text", "windowTitle"})
        if (controle->metaObject()->indexOfProperty(propriete) >= 0) {
            controle->setProperty(propriete, texte);
            return;
        }
}

void EcritLegende(QObject *controle, Endroit endroit, const QString &texte)
{
    switch (endroit) {
    case Endroit::Titre:
        EcritTitre(controle, texte);
        break;
    case Endroit::Bulle:
        PoseBulle(controle, texte);
        break;
    case Endroit::Nom:
        controle->setProperty("accessibleName", texte);
        break;
    }
}

/// The control of that name in a window; "" is the window itself. For a toolbar button it is its action, which holds
/// its texts. Controls of an open dialog are left out, though the dialog is a child of the main window: their names may
/// be the same.
QObject *ObjetNomme(QWidget *fenetre, QLatin1String nom)
{
    if (nom.isEmpty())
        return fenetre;
    if (auto *const action = fenetre->findChild<QAction *>(nom))
        return action;
    const auto candidats = fenetre->findChildren<QObject *>(nom);
    for (QObject *candidat : candidats) {
        const QObject *proprietaire = candidat;
        while (proprietaire != fenetre && qobject_cast<const QDialog *>(proprietaire) == nullptr)
            proprietaire = proprietaire->parent();
        if (proprietaire == fenetre)
            return candidat;
    }
    return nullptr;
}

/// When two buttons of a window share a shortcut letter and one of them is disabled, the toolkit presses the other one.
/// That could cancel the work when the operator asked for something else, so a cancel button gives up a letter that
/// another button has.
void LibereLettres(const QWidget *fenetre)
{
    const auto boutons = fenetre->findChildren<QAbstractButton *>();
    const auto annule = [](const QAbstractButton *bouton) {
        return bouton->text().startsWith(QLatin1String("&Cancel"));
    };
    for (QAbstractButton *const bouton : boutons) {
        const auto partage = [&](const QAbstractButton *autre) {
            return !annule(autre) && autre->shortcut() == bouton->shortcut();
        };
        if (annule(bouton) && std::any_of(boutons.begin(), boutons.end(), partage))
            bouton->setShortcut({});
    }
}

} // namespace

void AppliqueLangue()
{
    AppliqueLangueSysteme();
    const auto fenetres = QApplication::topLevelWidgets();
    for (QWidget *fenetre : fenetres)
        AppliqueLegendes(fenetre);
}

void MontreLangue()
{
    const auto fenetres = QApplication::topLevelWidgets();
    for (const QWidget *const fenetre : fenetres) {
        for (int langue = 0; langue < 3; ++langue) {
            auto *const entree = fenetre->findChild<QAction *>(QStringLiteral("Mnu_Lang_%1").arg(langue));
            const QString nom = TexteChoisi(NomsLangues[langue]);
            if (entree == nullptr || nom.isNull())
                continue;
            entree->setChecked(langue == LangIndex);
            entree->setText(nom);
        }
    }
}

void AppliqueLegendes(QWidget *fenetre)
{
    for (const LegendesFenetre *const table : Fenetres) {
        if (fenetre->objectName() != QLatin1String(table->fenetre))
            continue;
        for (const Legende &legende : table->legendes) {
            const QString texte = TexteChoisi({nullptr, legende.anglais, legende.espagnol});
            QObject *const controle = texte.isNull() ? nullptr : ObjetNomme(fenetre, QLatin1String(legende.controle));
            if (controle != nullptr && !controle->property(Donnee).toBool())
                EcritLegende(controle, legende.endroit, texte);
        }
    }
    LibereLettres(fenetre);
    QEvent changement(QEvent::LanguageChange);
    QCoreApplication::sendEvent(fenetre, &changement);
}

void PoseBulle(QObject *controle, const QString &texte)
{
    if (texte.isNull())
        return;
    controle->setProperty("toolTip", texte);
    auto *const bouton = qobject_cast<QAbstractButton *>(controle);
    if (auto *const action = qobject_cast<QAction *>(controle))
        action->setText(texte);
    else if (bouton != nullptr && bouton->text().isEmpty())
        bouton->setAccessibleName(texte);
}

void MontreDonnee(QWidget *controle, const QString &donnee)
{
    controle->setProperty(Donnee, true);
    EcritTitre(controle, donnee);
}

void PoseTexte(QWidget *controle, const Texte3 &texte, const QString &suite)
{
    const QString choisi = TexteChoisi(texte);
    if (choisi.isNull())
        return;
    EcritTitre(controle, choisi + suite);
    if (qobject_cast<QAbstractButton *>(controle) != nullptr)
        LibereLettres(controle->window());
}
