#include "Etabli.h"

#include "platform/dialogues/CommonDialog.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QListView>
#include <QMimeData>
#include <QToolButton>

namespace {

const QString Iso = QStringLiteral("P.iso");
const QString Version = QStringLiteral("Dorvanel Pro version " DORVANEL_VERSION " : ");

/// The names of the document, and those that the window shows of it.
QStringList Noms()
{
    return {Document.NomFichier, Document.TitreFichier, frmPrinc->windowTitle(), frmPrinc->Label2->text()};
}
QStringList Ouvert(const QString &chemin, const QString &titre)
{
    return {chemin, titre, Version + chemin, titre};
}

/// An operator who opens and saves programs.
struct Atelier : Etabli
{
    using Etabli::Etabli;

    void Choisit(const char *entree, const QString &chemin)
    {
        Operateur::Choisit(chemin);
        Menu(entree);
    }

    /// A program in the pane, and a part of it selected.
    void Ouvre(int debut, int longueur) const
    {
        OuvreDocument(Ecrit("P.iso", "N10\nN20\r\nN30"));
        frmPrinc->Text1->setSelStart(debut);
        frmPrinc->Text1->setSelLength(longueur);
    }
};

} // namespace

class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Through the two commands a program keeps every byte, whatever stood in the pane; the saving adds one CR LF.
    void AllerRetour()
    {
        Atelier atelier(0);
        const QByteArray tous = TousLesOctets();
        const QByteArray gros = QByteArray("N10 G1 X12.345 Y-6.789 F1000\nN20 G0\r\n").repeated(270'000);
        for (const QByteArray &octets :
             {QByteArray(), QByteArray("%\nN10\nM30\n"), QByteArray("%\rN10\rM30\r"),
              QByteArray("A\r\r\nB\n\rC\n\n\r\n\r\rD\r"), QByteArray("\tN10\t\fX1 \f\r\n \t\r\n"), tous,
              QByteArray(tous).replace("", "\r\n"), QByteArray(3, '\0'), QByteArray(100'000, 'X'),
              QByteArray("M30\r\n\x1A"), QByteArray("{\\rtf1 G0}"), gros}) {
            const auto passe = Passe(QString::fromLatin1(octets.left(20).toPercentEncoding()));
            const QString chemin = atelier.Ecrit("Pièce n° 1.iso", octets);
            atelier.Choisit("Mnu_Ouvrir", chemin);
            QCOMPARE(frmPrinc->Text1->Text().size(), octets.size());
            QCOMPARE(Noms(), Ouvert(chemin, u"Pièce n° 1.iso"_s));
            QVERIFY(!Document.FichierModifie);
            for (const char *entree : {"Mnu_EditProg", "Mnu_EnregistrerSous", "Mnu_Imprim"})
                QVERIFY2(Operateur::Offre(entree), entree);

            atelier.Choisit("Mnu_EnregistrerSous", atelier.Chemin("copie.iso"));
            QVERIFY(atelier.Lit("copie.iso") == octets + "\r\n");
            QVERIFY(atelier.Lit("Pièce n° 1.iso") == octets);
            QCOMPARE(Noms(), Ouvert(atelier.Chemin("copie.iso"), u"copie.iso"_s));
            QFile::remove(atelier.Chemin("copie.iso"));
        }
    }

    // No file dialog moves, renames or deletes anything; one that saves makes a folder under the name that it asks.
    void DialoguesSansDegats()
    {
        Atelier atelier(0);
        const QString programme = atelier.Ecrit("P.iso", "G0");
        OuvreDocument(programme);
        for (const char *const entree : {"Mnu_Ouvrir", "Mnu_EnregistrerSous"}) {
            const auto passe = Passe(QLatin1String(entree));
            atelier.Fait("CommonDialog", [&](QWidget &fenetre) {
                auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
                dialogue.setDirectory(atelier.Dossier());
                dialogue.selectFile(programme);
                for (const QString &nom : {u"treeView"_s, u"listView"_s}) {
                    auto *const liste = dialogue.findChild<QAbstractItemView *>(nom);
                    QVERIFY(liste->dragDropMode() == QAbstractItemView::NoDragDrop);
                    for (const auto touche : {Qt::Key_Delete, Qt::Key_F2})
                        QTest::keyClick(liste, touche);
                    QVERIFY(!(liste->currentIndex().flags() & (Qt::ItemIsEditable | Qt::ItemIsDropEnabled)));
                }
                for (const QString &nom : {u"qt_delete_action"_s, u"qt_rename_action"_s})
                    dialogue.findChild<QAction *>(nom)->trigger();
                for (auto *const nouveau : dialogue.findChildren<QToolButton *>(u"NouveauDossier"_s))
                    nouveau->click();
                dialogue.reject();
            });
            if (QLatin1String(entree) == "Mnu_EnregistrerSous"_L1)
                atelier.Fait("InputBox", [](QWidget &boite) {
                    dynamic_cast<QInputDialog &>(boite).setTextValue(u"Série 2"_s);
                    dynamic_cast<QInputDialog &>(boite).accept();
                });
            Operateur::Menu(entree);
            QVERIFY(QFile::exists(programme));
        }
        QVERIFY(QDir(atelier.Chemin("Série 2")).exists());
    }

    // The filter last used comes back, also into the saving dialog with its other list; cancelling changes nothing.
    void DialogueOuvrir()
    {
        Atelier atelier(0);
        const QString programme = atelier.Ecrit("P.xcn", "G0");
        for (const auto &[entree, filtres, montre, prend, fichier] :
             {std::tuple{"Mnu_Ouvrir", 16, "*.iso", "*.h", QString()},
              {"Mnu_Ouvrir", 16, "*.iso", "*.xcn", programme},
              {"Mnu_EnregistrerSous", 14, "*.xcn", "*.iso", QString()},
              {"Mnu_Ouvrir", 16, "*.xcn", "*.iso", QString()}}) {
            const auto passe = Passe(QLatin1String(entree) + u' ' + QLatin1String(prend));
            atelier.Fait("CommonDialog", [=](QWidget &fenetre) {
                auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
                QCOMPARE(dialogue.nameFilters().size(), filtres);
                QVERIFY2(dialogue.selectedNameFilter().contains(QLatin1String(montre)), montre);
                dialogue.selectNameFilter(dialogue.nameFilters().filter(QLatin1String(prend)).value(0));
                if (fichier.isEmpty())
                    dialogue.reject();
            });
            if (!fichier.isEmpty())
                atelier.Operateur::Choisit(fichier);
            Operateur::Menu(entree);
        }
        QCOMPARE((QStringList{frmPrinc->Text1->Text(), Document.TitreFichier}), (QStringList{u"G0"_s, u"P.xcn"_s}));
        QVERIFY(!frmPrinc->CommonDialog1->CancelError);
    }

    // A file that the pane refuses: the former document stays, by its name, its text and its changes.
    void OuvertureRatee()
    {
        Atelier atelier(2);
        const QString chemin = atelier.Ecrit(Iso, "G0");
        OuvreDocument(chemin);
        frmPrinc->Text1->setText(u"G1"_s);
        for (const QString &refuse :
             {atelier.Ecrit("Faux.RTF", "G0 X1\r\n"), atelier.Chemin("parti/x.iso"), atelier.Chemin("P.iso/x")}) {
            const auto passe = Passe(refuse);
            atelier.Repond("Mensaje",
                           u"Error en la apertura del fichero : %1. \r Formato no reconocido o fichero déja "
                           "abierto por otra aplicación.\r - Abrir el fichero con Worpad.\r - Registrar el "
                           "fichero al formato TXT.\r  Quieren utilizar a WordPad para leer este fichero ?"_s.arg(
                               QFileInfo(refuse).fileName()),
                           Boite::Information | Boite::OuiNon, QMessageBox::No);
            OuvreDocument(refuse);
            QCOMPARE(frmPrinc->Text1->Text(), u"G1"_s);
            QCOMPARE(Noms(), Ouvert(chemin, Iso));
            QVERIFY(Document.FichierModifie);
        }
    }

    // A changed text with a name: whether to save it, then whether to go on. A new program is offered the folder of the
    // programs, wherever the file dialog was last used.
    void Nouveau()
    {
        Atelier atelier(2);
        const QString chemin = atelier.Ecrit(Iso, "G0");
        OuvreDocument(chemin);
        for (const auto &[tape, enregistre, va, fichier] :
             {std::tuple{u""_s, QMessageBox::NoButton, QMessageBox::No, "G0"},
              {u"G1"_s, QMessageBox::No, QMessageBox::No, "G0"},
              {u"G2"_s, QMessageBox::Yes, QMessageBox::No, "G2\r\n"},
              {u"G3"_s, QMessageBox::No, QMessageBox::Yes, "G2\r\n"}}) {
            const auto passe = Passe(tape);
            if (!tape.isEmpty()) {
                frmPrinc->Text1->setText(tape);
                atelier.Repond("Fichero en curso modificado",
                               u"Fichero %1 modificado !\r\n            Enregsi el fichero ? "_s.arg(chemin),
                               Operateur::DemandeSimple, enregistre);
            }
            atelier.Repond("Nuevo fichero ?", "Nuevo fichero\r\n        Confirme ? ", Operateur::DemandeSimple, va);
            Operateur::Menu("Mnu_Nouveau");
            QCOMPARE(atelier.Lit(Iso), QByteArray(fichier));
            QCOMPARE(Document.FichierModifie, tape == u"G1");
            QCOMPARE(frmPrinc->Text1->Text(), va == QMessageBox::Yes ? QString() : tape.isEmpty() ? u"G0"_s : tape);
        }
        QCOMPARE(Noms(), Ouvert(u"Nuevo.iso"_s, Iso));
        QVERIFY(frmPrinc->Bouton(2)->isEnabled());
        QVERIFY(!frmPrinc->Mnu_Annuler->isEnabled());
        frmPrinc->CommonDialog1->InitDir = u"/"_s;
        atelier.Fait("CommonDialog", [](QWidget &fenetre) {
            QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory(), QDir(Reglages.DosDefaut));
            fenetre.close();
        });
        Operateur::Menu("Mnu_EnregistrerSous");
    }

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
        Atelier atelier(0);
        atelier.Ouvre(0, 3);
        auto *const image = new QMimeData; // owned by the clipboard
        image->setData(u"image/png"_s, "x");
        QGuiApplication::clipboard()->setMimeData(image);
        QCOMPARE(offres(), u"Couper Copier Supprimer"_s);
        QTest::mousePress(frmPrinc->Text1->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        QVERIFY(frmPrinc->Mnu_Edition->isVisible());
        QVERIFY(frmPrinc->Mnu_Couper->isEnabled());
        frmPrinc->Mnu_Edition->close();
        QCOMPARE(frmPrinc->Text1->SelLength(), 3);
        QGuiApplication::clipboard()->setText(u"X"_s);
        atelier.Ouvre(2, 0);
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
            const auto passe = Passe(u"%1 at %2"_s.arg(entree).arg(debut));
            Atelier atelier(0);
            atelier.Ouvre(debut, longueur);
            const QString avant = frmPrinc->Text1->Text();
            QGuiApplication::clipboard()->setText(colle);
            Operateur::Menu(entree);
            const bool change = texte != avant;
            QCOMPARE(frmPrinc->Text1->Text(), texte);
            QCOMPARE(QGuiApplication::clipboard()->text(), pressePapiers);
            QCOMPARE(frmPrinc->Mnu_Annuler->isEnabled(), change);
            QCOMPARE(Document.FichierModifie, change);
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
        Atelier atelier(0);
        atelier.Ouvre(0, 3);
        RichTextBox *const pane = frmPrinc->Text1;
        const QString programme = pane->Text();
        frmPrinc->activateWindow();
        pane->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(frmPrinc));
        atelier.Ferme("CommonDialog");
        QTest::keyClick(pane, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
        QTest::keyClick(pane, Qt::Key_H, Qt::AltModifier);
        QTest::keyClick(pane, Qt::Key_H, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(pane->Text(), programme);
        QVERIFY(!Document.FichierModifie);
        QTest::keyClicks(pane, u"abc"_s);
        QCOMPARE(Document.TexteAnnuler, QString());
    }
};

QTEST_MAIN(TestDocument)
#include "TestDocument.moc"
