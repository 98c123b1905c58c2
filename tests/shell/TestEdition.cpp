#include "Operateur.h"
#include "Poste.h"

#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QClipboard>
#include <QMimeData>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A workstation with a program in the pane and a part of it selected.
struct Atelier : Poste
{
    Atelier(int debut, int longueur, const QByteArray &programme = "N10\nN20\r\nN30")
        : Poste(0)
    {
        OuvreDocument(Ecrit("P.iso", programme));
        Selectionne(debut, longueur);
    }

    static void Selectionne(int debut, int longueur)
    {
        frmPrinc->Text1->setSelStart(debut);
        frmPrinc->Text1->setSelLength(longueur);
    }
};

} // namespace

class TestEdition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the menu offers follows the selection and the clipboard at the moment it opens, also under the right button.
    void Entrees()
    {
        const auto offres = [] {
            QStringList offertes;
            for (const QString &entree : {u"Annuler"_s, u"Couper"_s, u"Copier"_s, u"Coller"_s, u"Supprimer"_s}) {
                if (Operateur::Offre(u"Mnu_"_s + entree))
                    offertes << entree;
            }
            return offertes.join(u' ');
        };
        const Atelier atelier(0, 3);
        auto *const image = new QMimeData; // owned by the clipboard
        image->setData(u"image/png"_s, "x");
        QGuiApplication::clipboard()->setMimeData(image);
        QCOMPARE(offres(), u"Couper Copier Supprimer"_s);
        QWidget *const pane = frmPrinc->Text1->viewport();
        QTest::mousePress(pane, Qt::RightButton, {}, QPoint(5, 5));
        QVERIFY(frmPrinc->Mnu_Edition->isVisible() && frmPrinc->Mnu_Couper->isEnabled());
        QVERIFY(!frmPrinc->Mnu_Coller->isEnabled() && frmPrinc->Text1->SelLength() == 3);
        frmPrinc->Mnu_Edition->close();
        QTest::mouseRelease(pane, Qt::RightButton, {}, QPoint(5, 5));
        QGuiApplication::clipboard()->setText(u"X"_s);
        Atelier::Selectionne(2, 0);
        QCOMPARE(offres(), u"Coller"_s);
    }

    // A command on a selection: the text behind it, the clipboard, whether it can be undone. Undo restores the whole
    // text and does so once.
    void Commandes()
    {
        const QString colle = u"X\tY\rZ\r\n"_s;
        const std::tuple<QString, int, int, QString, QString> commandes[] = {
            {u"Mnu_Couper"_s, 0, 4, u"N20\r\nN30"_s, u"N10\n"_s},
            {u"Mnu_Copier"_s, 4, 6, u"N10\nN20\r\nN30"_s, u"N20\r\nN"_s},
            {u"Mnu_Coller"_s, 4, 5, u"N10\nX\tY\rZ\r\nN30"_s, colle},
            {u"Mnu_Coller"_s, 12, 0, u"N10\nN20\r\nN30X\tY\rZ\r\n"_s, colle},
            {u"Mnu_Supprimer"_s, 3, 6, u"N10N30"_s, colle}};
        for (const auto &[entree, debut, longueur, texte, pressePapiers] : commandes) {
            const Atelier atelier(debut, longueur);
            const QString avant = frmPrinc->Text1->Text();
            QGuiApplication::clipboard()->setText(colle);
            Operateur::Menu(entree);
            const bool change = texte != avant;
            QCOMPARE(frmPrinc->Text1->Text(), texte);
            QCOMPARE(QGuiApplication::clipboard()->text(), pressePapiers);
            QCOMPARE(frmPrinc->Mnu_Annuler->isEnabled(), change);
            QCOMPARE(FichierModifie, change ? Vrai : 0);
            if (change)
                Operateur::Menu("Mnu_Annuler");
            QCOMPARE(frmPrinc->Text1->Text(), avant);
            QVERIFY(!frmPrinc->Mnu_Annuler->isEnabled());
        }
    }

    // Ctrl+C loads a configuration, also while the keyboard is in the text. Alt with a letter that no menu bears types
    // nothing into the program. Typing leaves the copy for the undo alone.
    void Raccourcis()
    {
        const Atelier atelier(0, 3);
        frmPrinc->activateWindow();
        frmPrinc->Text1->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(frmPrinc));
        Operateur operateur;
        operateur.Fait("CommonDialog", [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Sélectionner une configuration de communication"_s);
            fenetre.close();
        });
        QTest::keyClick(frmPrinc->Text1, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
        const QString programme = frmPrinc->Text1->Text();
        for (const Qt::KeyboardModifiers touches :
             {Qt::AltModifier | Qt::NoModifier, Qt::AltModifier | Qt::ShiftModifier})
            QTest::keyClick(frmPrinc->Text1, Qt::Key_H, touches);
        QCOMPARE(frmPrinc->Text1->Text(), programme);
        QCOMPARE(FichierModifie, 0);
        QTest::keyClicks(frmPrinc->Text1, u"abc"_s);
        QCOMPARE(TexteAnnuler, QString());
    }
};

QTEST_MAIN(TestEdition)
#include "TestEdition.moc"
