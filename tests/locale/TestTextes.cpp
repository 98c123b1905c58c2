#include "Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/Prop.h"
#include "gauges/ConfMac.h"
#include "gauges/Jauge.h"
#include "gauges/JauTour.h"
#include "shell/Apropos.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"
#include "transfer/Transfert.h"

#include <QAccessible>
#include <QAction>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The list of captions: window, control, "titre" or "bulle", French, English, Spanish.
QList<QStringList> Liste()
{
    QFile fichier(QString::fromUtf16(DONNEES) + u"/legendes.tsv"_s);
    QList<QStringList> liste;
    if (fichier.open(QIODevice::ReadOnly))
        for (const QString &ligne : QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts))
            liste << ligne.split(u'\t');
    return liste;
}

using Fenetres = std::map<QString, std::unique_ptr<QWidget>>;

/// Every window with captions but the main one, as it is made.
Fenetres Ouvertes()
{
    frmPrinc->CreeExplorateur();
    TypeTransfert = ModeTransfert{}; // no mode: each transfer writes its own words over the captions
    NbJauges = 1;
    Fenetres fenetres;
    fenetres[u"Apropos"_s] = std::make_unique<Apropos>(nullptr);
    fenetres[u"ConfMac"_s] = std::make_unique<ConfMac>(nullptr);
    fenetres[u"DosProg"_s] = std::make_unique<DosProg>(DossierProgrammes, nullptr);
    fenetres[u"Em_Rc"_s] = std::make_unique<Em_Rc>(nullptr);
    fenetres[u"FrmCaract"_s] = std::make_unique<FrmCaract>(ChaineLigne, QString(), nullptr);
    fenetres[u"FrmConfDem"_s] = std::make_unique<FrmConfDem>(nullptr);
    fenetres[u"JauTour"_s] = std::make_unique<JauTour>(nullptr);
    fenetres[u"Rc_Fic"_s] = std::make_unique<Rc_Fic>(nullptr);
    fenetres[u"Prop"_s] = std::make_unique<Prop>(nullptr);
    return fenetres;
}

QString Montre(const QWidget &fenetre, const QString &controle, const QString &endroit)
{
    const QObject *objet = &fenetre;
    if (!controle.isEmpty())
        objet = fenetre.findChild<QAction *>(controle);
    if (objet == nullptr)
        objet = fenetre.findChild<QWidget *>(controle);
    if (objet == nullptr)
        return u"no such control"_s;
    if (endroit == u"bulle")
        return objet->property("toolTip").toString();
    for (const char *const propriete : {"title", "text", "windowTitle"})
        if (objet->metaObject()->indexOfProperty(propriete) >= 0)
            return objet->property(propriete).toString();
    return u"no caption"_s;
}

} // namespace

class TestTextes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Legendes_data();
    void Legendes();
    void Accessibles_data() { Legendes_data(); }
    void Accessibles();
};

void TestTextes::Legendes_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("French") << 0;
    QTest::newRow("English") << 1;
    QTest::newRow("Spanish") << 2;
}

// Every caption and tool tip of every window against the list.
void TestTextes::Legendes()
{
    QFETCH(int, langue);
    const Poste poste(langue);
    const Fenetres fenetres = Ouvertes();
    const QList<QStringList> liste = Liste();
    QCOMPARE(liste.size(), 270);
    QStringList ecarts;
    for (const QStringList &ligne : liste) {
        const QWidget &fenetre = ligne[0] == u"frmPrinc" ? *frmPrinc : *fenetres.at(ligne[0]);
        const QString montre = Montre(fenetre, ligne[1], ligne[2]);
        if (montre != ligne[3 + langue])
            ecarts << u"%1 %2 %3: «%4», not «%5»"_s.arg(ligne[0], ligne[1], ligne[2], montre, ligne[3 + langue]);
    }
    QVERIFY2(ecarts.isEmpty(), qPrintable(ecarts.join(u'\n')));
}

// Whoever hears the windows instead of seeing them: every control that takes the keyboard has a name.
void TestTextes::Accessibles()
{
    QFETCH(int, langue);
    const Poste poste(langue);
    QStringList muets;
    for (const auto &[nom, fenetre] : Ouvertes())
        for (const QWidget *const controle : fenetre->findChildren<QWidget *>()) {
            // What the toolkit makes inside a control has no name of the program's; tabs are heard one by one.
            const bool interne = controle->objectName().isEmpty() || controle->objectName().startsWith(u"qt_");
            if (controle->focusPolicy() == Qt::NoFocus || interne || controle->inherits("QTabWidget"))
                continue;
            const QAccessibleInterface *const entendu =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(controle));
            if (entendu == nullptr || entendu->text(QAccessible::Name).trimmed().isEmpty())
                muets << nom + u' ' + controle->objectName();
        }
    QVERIFY2(muets.isEmpty(), qPrintable(muets.join(u'\n')));
}

QTEST_MAIN(TestTextes)
#include "TestTextes.moc"
