#include "Poste.h"

#include "shell/FrmPrinc.h"
#include "shell/Menus.h"

#include <QMetaMethod>
#include <QTest>

namespace {

/// Opens a count that Qt keeps to the object itself.
struct Compteur : QObject
{
    using QObject::receivers;
};

/// How many routines listen to each entry and button, by name.
QMap<QString, int> Auditeurs()
{
    constexpr int (QObject::*compte)(const char *) const = &Compteur::receivers;
    QMap<QString, int> auditeurs;
    const auto actions = frmPrinc->findChildren<QAction *>(QRegularExpression(QStringLiteral("^(Mnu?|Toolbar1)_")));
    for (const QAction *action : actions)
        auditeurs[action->objectName()] = (action->*compte)(SIGNAL(triggered(bool)));
    return auditeurs;
}

} // namespace

class TestMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ToutEstServi();
};

// Nothing that the operator can choose is left without a routine, but for what is still to come.
void TestMenus::ToutEstServi()
{
    const QStringList aVenir = QStringLiteral("Mn_CreeConfMac Mn_ModifConfMac Mnu_Aide Mnu_AideEnLigne Mnu_Apropos "
                                              "Mnu_ConfigIMP Mnu_EditProg "
                                              "Mnu_Imprim Mnu_Police Mnu_RecepBanc Toolbar1_13 "
                                              "Toolbar1_16 Toolbar1_17 Toolbar1_3 Toolbar1_4 Toolbar1_5")
                                   .split(u' ');
    const Poste poste;
    const FrmPrinc fenetre;
    const QMap<QString, int> avant = Auditeurs();
    Branche();
    const QMap<QString, int> apres = Auditeurs();
    QStringList muettes;
    for (auto ligne = avant.begin(); ligne != avant.end(); ++ligne) {
        if (apres[ligne.key()] == ligne.value())
            muettes << ligne.key();
    }
    QCOMPARE(avant.size(), 48);
    QCOMPARE(muettes, aVenir);
}

QTEST_MAIN(TestMenus)
#include "TestMenus.moc"
