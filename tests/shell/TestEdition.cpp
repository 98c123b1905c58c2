#include "Operateur.h"
#include "Poste.h"

#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QClipboard>
#include <QMimeData>
#include <QTest>

namespace {

/// Which of the entries the operator can choose now, by their initials: A undo, u cut, o copy, l paste, S delete.
QString Offres()
{
    QString offres;
    for (const auto &[entree, initiale] : {std::pair{"Mnu_Annuler", 'A'},
                                           {"Mnu_Couper", 'u'},
                                           {"Mnu_Copier", 'o'},
                                           {"Mnu_Coller", 'l'},
                                           {"Mnu_Supprimer", 'S'}}) {
        if (Operateur::Offre(QLatin1String(entree)))
            offres += QLatin1Char(initiale);
    }
    return offres;
}

void Selectionne(int debut, int longueur)
{
    frmPrinc->Text1->setSelStart(debut);
    frmPrinc->Text1->setSelLength(longueur);
}

void Ouvre(const Poste &poste)
{
    OuvreDocument(poste.Ecrit(QStringLiteral("P.iso"), "N10\nN20\r\nN30"));
}

} // namespace

class TestEdition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Entrees();
    void Commandes_data();
    void Commandes();
    void CopieVersAilleurs();
    void Raccourcis();
    void BoutonDroit();
};

// What the menu offers follows the selection and the clipboard at the moment it opens.
void TestEdition::Entrees()
{
    Poste poste;
    poste.Demarre(0);
    QCOMPARE(Offres(), QString());
    Ouvre(poste);
    Selectionne(0, 3);
    QCOMPARE(Offres(), QStringLiteral("uoS"));
    auto *const image = new QMimeData; // owned by the clipboard
    image->setData(QStringLiteral("image/png"), "x");
    QGuiApplication::clipboard()->setMimeData(image);
    QCOMPARE(Offres(), QStringLiteral("uoS"));
    QGuiApplication::clipboard()->setText(QStringLiteral("X"));
    Selectionne(2, 0);
    QCOMPARE(Offres(), QStringLiteral("l"));
}

// A command on a selection: the text behind it, the clipboard, whether it can be undone. Undo restores the whole text
// and does so once.
void TestEdition::Commandes_data()
{
    QTest::addColumn<QString>("entree");
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("longueur");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("pressePapiers");
    QTest::newRow("cut") << "Mnu_Couper" << 0 << 4 << "N20\r\nN30"
                         << "N10\n";
    QTest::newRow("copy") << "Mnu_Copier" << 4 << 6 << "N10\nN20\r\nN30"
                          << "N20\r\nN";
    QTest::newRow("paste over a selection") << "Mnu_Coller" << 4 << 5 << "N10\nX\tY\rZ\r\nN30"
                                            << "X\tY\rZ\r\n";
    QTest::newRow("paste") << "Mnu_Coller" << 12 << 0 << "N10\nN20\r\nN30X\tY\rZ\r\n"
                           << "X\tY\rZ\r\n";
    QTest::newRow("delete") << "Mnu_Supprimer" << 3 << 6 << "N10N30"
                            << "X\tY\rZ\r\n";
}

void TestEdition::Commandes()
{
    QFETCH(QString, entree);
    QFETCH(int, debut);
    QFETCH(int, longueur);
    QFETCH(QString, texte);
    Poste poste;
    poste.Demarre(0);
    Ouvre(poste);
    const QString avant = frmPrinc->Text1->Text();
    QGuiApplication::clipboard()->setText(QStringLiteral("X\tY\rZ\r\n"));
    Selectionne(debut, longueur);
    Operateur::Menu(entree);
    const bool copie = entree == QLatin1String("Mnu_Copier");
    QCOMPARE(frmPrinc->Text1->Text(), texte);
    QTEST(QGuiApplication::clipboard()->text(), "pressePapiers");
    QCOMPARE(frmPrinc->Mnu_Annuler->isEnabled(), !copie);
    QCOMPARE(FichierModifie, copie ? 0 : Vrai);
    if (copie)
        return;
    Operateur::Menu(QStringLiteral("Mnu_Annuler"));
    QCOMPARE(frmPrinc->Text1->Text(), avant);
    QVERIFY(!frmPrinc->Mnu_Annuler->isEnabled());
}

// Bytes that are no ordinary text survive the clipboard; typing leaves the undo copy alone.
void TestEdition::CopieVersAilleurs()
{
    Poste poste;
    poste.Demarre(0);
    OuvreDocument(poste.Ecrit(QStringLiteral("P.iso"), "%\f\t\r\xE9\x80\x81\nFIN"));
    const QString texte = frmPrinc->Text1->Text();
    Selectionne(0, int(texte.size()));
    Operateur::Menu(QStringLiteral("Mnu_Couper"));
    QVERIFY(frmPrinc->Text1->EstVide());
    Operateur::Menu(QStringLiteral("Mnu_Coller"));
    QCOMPARE(frmPrinc->Text1->Text(), texte);
    QTest::keyClicks(frmPrinc->Text1, QStringLiteral("abc"));
    QCOMPARE(TexteAnnuler, QString());
    Operateur::Menu(QStringLiteral("Mnu_Annuler"));
    QVERIFY(frmPrinc->Text1->EstVide());
}

// Ctrl+C loads a configuration, also while the keyboard is in the text.
void TestEdition::Raccourcis()
{
    Poste poste;
    poste.Demarre(0);
    Ouvre(poste);
    frmPrinc->activateWindow();
    frmPrinc->Text1->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(frmPrinc));
    Selectionne(0, 3);
    Operateur operateur;
    operateur.Fait(QStringLiteral("CommonDialog"), [](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), QStringLiteral("Sélectionner une configuration de communication"));
        fenetre.close();
    });
    QTest::keyClick(frmPrinc->Text1, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString());
}

// The right button opens the menu where it was pressed, with its entries brought up to date; the left one does not.
void TestEdition::BoutonDroit()
{
    Poste poste;
    poste.Demarre(0);
    Ouvre(poste);
    Selectionne(0, 3);
    QWidget *const pane = frmPrinc->Text1->viewport();
    QTest::mousePress(pane, Qt::RightButton, {}, QPoint(5, 5));
    QVERIFY(frmPrinc->Mnu_Edition->isVisible() && frmPrinc->Mnu_Couper->isEnabled());
    QVERIFY(!frmPrinc->Mnu_Coller->isEnabled());
    QCOMPARE(frmPrinc->Text1->SelLength(), 3);
    frmPrinc->Mnu_Edition->close();
    QTest::mouseRelease(pane, Qt::RightButton, {}, QPoint(5, 5));
    QTest::mouseClick(pane, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!frmPrinc->Mnu_Edition->isVisible());
}

QTEST_MAIN(TestEdition)
#include "TestEdition.moc"
