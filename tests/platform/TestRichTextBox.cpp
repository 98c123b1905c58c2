#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/PageCode1252.h"
#include "platform/RichTextBox.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

namespace {

QString T(const char *octets)
{
    return TexteDe1252(QByteArray(octets));
}

QString TousLesOctets()
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    return TexteDe1252(octets);
}

int NombreDeLignes(QString texte)
{
    texte.replace(T("\r\n"), T("\n"));
    return static_cast<int>(texte.count(QLatin1Char('\n')) + texte.count(QLatin1Char('\r'))) + 1;
}

void Place(RichTextBox &volet, int debut, int longueur)
{
    volet.setSelStart(debut);
    volet.setSelLength(longueur);
}

/// A position of the model that lies between CR and LF stands for the whole line end.
int Avant(const QString &modele, int place)
{
    const bool coupe = place > 0 && place < modele.size() && modele[place - 1] == QLatin1Char('\r') &&
                       modele[place] == QLatin1Char('\n');
    return coupe ? place - 1 : place;
}

int Apres(const QString &modele, int place)
{
    return Avant(modele, place) == place ? place : place + 1;
}

QString TexteAuHasard(QRandomGenerator &hasard)
{
    static const QStringList morceaux{T("\r\n"), T("\r"), T("\n"), T("N10 X1"), T("%"), T("\t"), T("\xE9\xA0")};
    QString texte;
    for (int n = hasard.bounded(4); n >= 0; --n)
        texte += morceaux[hasard.bounded(static_cast<int>(morceaux.size()))];
    return texte;
}

/// The clipboard's owner, as a program that is not this one would be.
QMimeData *Etranger(const QString &texte)
{
    auto *donnees = new QMimeData;
    donnees->setText(texte);
    return donnees;
}

} // namespace

class TestRichTextBox : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dossier.isValid()); }

    void rendCeQuIlARecu_data()
    {
        QTest::addColumn<QString>("texte");
        const QString longue = T("%\r\nO0001\r\nN10 G0 X0\r\n");
        QTest::newRow("empty") << QString();
        QTest::newRow("one line") << T("M30");
        QTest::newRow("CR LF") << longue;
        QTest::newRow("LF") << QString(longue).remove(QLatin1Char('\r'));
        QTest::newRow("CR") << QString(longue).remove(QLatin1Char('\n'));
        QTest::newRow("mixed") << T("a\r\nb\rc\nd\r\r\n\n\r\ne\n\r");
        QTest::newRow("only ends") << T("\n\n\r\r\r\n\r\n");
        QTest::newRow("all bytes") << TousLesOctets();
        QTest::newRow("all bytes, long line") << TousLesOctets().remove(QLatin1Char('\r')).repeated(50);
        QTest::newRow("NUL at the ends") << QString(3, QChar(QChar::Null)) + T("\r\n") + QChar(QChar::Null);
    }

    void rendCeQuIlARecu()
    {
        QFETCH(QString, texte);
        const QString chemin = m_dossier.filePath(QStringLiteral("p.iso"));
        EcritFichierTexte(chemin, texte);
        RichTextBox volet;
        volet.setText(T("avant\nlui"));
        volet.LoadFile(chemin, RichTextBox::TexteSimple);
        QCOMPARE(volet.Text(), texte);
        QCOMPARE(volet.blockCount(), NombreDeLignes(texte));
        QCOMPARE(volet.EstVide(), texte.isEmpty());
        volet.setText(T("\n"));
        volet.setText(texte);
        QCOMPARE(volet.Text(), texte);
        volet.selectAll();
        QCOMPARE(volet.SelText(), texte);
        QCOMPARE(volet.SelLength(), texte.size());

        RichTextBox parCaractere;
        QString recu;
        for (const QChar c : std::as_const(texte)) {
            parCaractere.Ajoute(c);
            recu += c;
            if (texte.size() < 1000 || recu.size() == texte.size())
                QCOMPARE(parCaractere.Text(), recu);
        }
        QCOMPARE(parCaractere.blockCount(), NombreDeLignes(texte));
    }

    // The pane against a plain string, under edits that split and join line ends of every kind.
    void suitUnModele_data()
    {
        QTest::addColumn<int>("graine");
        for (int graine = 1; graine <= 12; ++graine)
            QTest::addRow("seed %d", graine) << graine;
    }

    void suitUnModele()
    {
        QFETCH(int, graine);
        QRandomGenerator hasard(static_cast<quint32>(graine));
        RichTextBox volet;
        QString modele;
        for (int i = 0; i < 250; ++i) {
            const int debut = Avant(modele, hasard.bounded(static_cast<int>(modele.size()) + 1));
            const int fin = Apres(modele, debut + hasard.bounded(std::min<int>(6, modele.size() - debut + 1)));
            const QString texte = TexteAuHasard(hasard);
            const int n = hasard.bounded(5);
            switch (hasard.bounded(6)) {
            case 0:
                volet.Ajoute(texte);
                modele += texte;
                break;
            case 1:
                QVERIFY(volet.FinitPar(modele.right(n)));
                volet.RetireFin(n);
                modele.chop(n);
                break;
            case 2:
                Place(volet, debut, fin - debut);
                QTest::keyClick(&volet, Qt::Key_Delete);
                modele.remove(debut, std::max(fin, Apres(modele, std::min<int>(debut + 1, modele.size()))) - debut);
                break;
            default:
                Place(volet, debut, fin - debut);
                QCOMPARE(volet.SelStart(), debut);
                QCOMPARE(volet.SelLength(), fin - debut);
                QCOMPARE(volet.SelText(), modele.mid(debut, fin - debut));
                volet.setSelText(texte);
                modele.replace(debut, fin - debut, texte);
            }
            QCOMPARE(volet.Text(), modele);
            QCOMPARE(volet.blockCount(), NombreDeLignes(modele));
        }
    }

    void annuleEtRefait()
    {
        RichTextBox volet;
        const QString depart = T("a\rX\nb\r\nc\nd\r");
        volet.setText(depart);
        QVERIFY(!volet.document()->isUndoAvailable());
        Place(volet, 2, 1);
        QTest::keyClick(&volet, Qt::Key_Backspace);
        QCOMPARE(volet.Text(), T("a\r\nb\r\nc\nd\r"));
        QCOMPARE(volet.blockCount(), 5);
        Place(volet, 0, 7);
        volet.setSelText(T("Z\rZ"));
        QTest::keyClick(&volet, Qt::Key_Return);
        const QString arrivee = volet.Text();
        QCOMPARE(arrivee, T("Z\rZ\r\n\nd\r"));
        while (volet.document()->isUndoAvailable())
            volet.undo();
        QCOMPARE(volet.Text(), depart);
        while (volet.document()->isRedoAvailable())
            volet.redo();
        QCOMPARE(volet.Text(), arrivee);
    }

    void bornesHorsDuTexte()
    {
        RichTextBox volet;
        volet.setText(T("a\r\nb\nc"));
        Place(volet, 2, 1); // between CR and LF
        QCOMPARE(volet.SelStart(), 1);
        QCOMPARE(volet.SelLength(), 2);
        Place(volet, -5, 1000);
        QCOMPARE(volet.SelText(), volet.Text());
        Place(volet, 1000, 1);
        QCOMPARE(volet.SelStart(), 6);
        QCOMPARE(volet.SelLength(), 0);
    }

    void finDuTexte()
    {
        RichTextBox volet;
        QVERIFY(volet.FinitPar(QString()));
        QVERIFY(!volet.FinitPar(T("%")));
        volet.setText(T("N10\r\n"));
        QVERIFY(volet.FinitPar(T("0\r\n")));
        QVERIFY(!volet.FinitPar(T("0\n")));
        QVERIFY(!volet.FinitPar(T("xxxN10\r\n")));
        volet.RetireFin(1);
        QCOMPARE(volet.Text(), T("N10\r"));
        volet.Ajoute(T("\n%"));
        QCOMPARE(volet.Text(), T("N10\r\n%"));
        QCOMPARE(volet.blockCount(), 2);
        volet.RetireFin(0);
        volet.RetireFin(100);
        QVERIFY(volet.EstVide());
    }

    void remplaceCeQueLaLigneNaPas()
    {
        RichTextBox volet;
        volet.setText(QStringLiteral("Ø\u20AC\u2126\U0001F527\u2028a\u2029\uFFFC\uFDD0"));
        QCOMPARE(volet.Text(), QStringLiteral("Ø\u20AC??\r\na\r\n??"));
        for (const char16_t lettre : {u'\u2126', u'\u00E9'}) {
            QKeyEvent touche(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QChar(lettre));
            QCoreApplication::sendEvent(&volet, &touche);
        }
        QVERIFY(volet.Text().startsWith(QStringLiteral("?\u00E9")));
        QInputMethodEvent saisie;
        saisie.setCommitString(QStringLiteral("\u4E2D"));
        QCoreApplication::sendEvent(&volet, &saisie);
        QVERIFY(volet.Text().startsWith(QStringLiteral("?\u00E9?")));
    }

    void toucheEntree()
    {
        RichTextBox volet;
        volet.setText(T("a\nb"));
        volet.setSelStart(2);
        QSignalSpy touches(&volet, &RichTextBox::KeyPress);
        QSignalSpy changements(&volet, &RichTextBox::Change);
        QTest::keyClick(&volet, Qt::Key_Return);
        QTest::keyClick(&volet, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(&volet, Qt::Key_Enter, Qt::KeypadModifier);
        QTest::keyClick(&volet, Qt::Key_Tab);
        QCOMPARE(volet.Text(), T("a\n\r\n\r\n\r\n\tb"));
        QCOMPARE(touches.size(), 4);
        QCOMPARE(changements.size(), 4);
        QTest::keyClick(&volet, Qt::Key_Left);
        QTest::keyClick(&volet, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(touches.size(), 4);
        QCOMPARE(volet.SelLength(), 10);
        volet.setReadOnly(true);
        QTest::keyClick(&volet, Qt::Key_Return);
        QCOMPARE(volet.Text(), T("a\n\r\n\r\n\r\n\tb"));
    }

    void leMenuGagne_data()
    {
        QTest::addColumn<int>("touche");
        QTest::addColumn<bool>("ctrl");
        for (const char lettre : {'C', 'O', 'E', 'I', 'Q', 'P', 'J', 'B'})
            QTest::addRow("Ctrl+%c", lettre) << static_cast<int>(lettre) << true;
        QTest::newRow("F1") << static_cast<int>(Qt::Key_F1) << false;
    }

    void leMenuGagne()
    {
        QFETCH(int, touche);
        QFETCH(bool, ctrl);
        const auto cle = static_cast<Qt::Key>(touche);
        const auto modificateur = ctrl ? Qt::ControlModifier : Qt::NoModifier;
        QMainWindow fenetre;
        auto *volet = new RichTextBox;
        fenetre.setCentralWidget(volet);
        QAction action;
        action.setShortcut(QKeyCombination(modificateur, cle));
        fenetre.addAction(&action);
        QSignalSpy choisi(&action, &QAction::triggered);
        fenetre.show();
        QVERIFY(QTest::qWaitForWindowActive(&fenetre));
        volet->setFocus();
        volet->setText(T("N10\r\nN20"));
        volet->selectAll();
        QGuiApplication::clipboard()->setText(T("ailleurs"));
        QTest::keyClick(volet, cle, modificateur);
        QCOMPARE(choisi.size(), 1);
        action.setEnabled(false);
        QTest::keyClick(volet, cle, modificateur);
        QCOMPARE(volet->Text(), T("N10\r\nN20"));
        QCOMPARE(QGuiApplication::clipboard()->text(), T("ailleurs"));
    }

    void copieEtColle()
    {
        RichTextBox volet;
        const QString texte = T("a\nb\xA0\t\x80\nc");
        volet.setText(texte);
        volet.selectAll();
        volet.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), texte);
        volet.setText(T("[]\r\n"));
        volet.setSelStart(1);
        QTest::keyClick(&volet, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(volet.Text(), T("[") + texte + T("]\r\n"));
        volet.selectAll();
        QTest::keyClick(&volet, Qt::Key_X, Qt::ControlModifier);
        QVERIFY(volet.EstVide());
        QGuiApplication::clipboard()->setMimeData(Etranger(T("1\n2\n")));
        volet.paste();
        QCOMPARE(volet.Text(), T("1\r\n2\r\n"));
        QGuiApplication::clipboard()->setMimeData(Etranger(T("\r3\n")));
        volet.paste();
        QCOMPARE(volet.Text(), T("1\r\n2\r\n\r3\n"));
    }

    void souris()
    {
        RichTextBox volet;
        QSignalSpy appuis(&volet, &RichTextBox::MouseDown);
        QTest::mouseClick(volet.viewport(), Qt::RightButton, {}, {5, 6});
        QCOMPARE(appuis.size(), 1);
        QCOMPARE(appuis[0][0].value<Qt::MouseButton>(), Qt::RightButton);
        QCOMPARE(appuis[0][1].toPoint(), volet.viewport()->mapToGlobal(QPoint(5, 6)));
        QContextMenuEvent clavier(QContextMenuEvent::Keyboard, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(volet.viewport(), &clavier);
        QCOMPARE(appuis.size(), 2);
    }

    void aspect()
    {
        RichTextBox volet;
        QCOMPARE(volet.SelFontSize(), 9.75);
        QVERIFY(volet.SelBold());
        volet.setText(T("a\nb\rc"));
        QSignalSpy changements(&volet, &RichTextBox::Change);
        volet.selectAll();
        volet.setSelFontName(QStringLiteral("DejaVu Sans Mono"));
        volet.setSelFontSize(14.5);
        volet.setSelBold(false);
        volet.setSelItalic(true);
        volet.setSelUnderline(true);
        volet.setSelStrikeThru(true);
        volet.setSelColor(Qt::red);
        QCOMPARE(changements.size(), 0);
        const auto verifie = [&volet] {
            return volet.SelFontName() == QLatin1String("DejaVu Sans Mono") && volet.SelFontSize() == 14.5 &&
                   !volet.SelBold() && volet.SelItalic() && volet.SelUnderline() && volet.SelStrikeThru() &&
                   volet.SelColor() == QColor(Qt::red);
        };
        QVERIFY(verifie());
        QCOMPARE(volet.Text(), T("a\nb\rc"));
        for (const QString &texte : {T("x\ny"), QString()}) {
            volet.setText(texte);
            QVERIFY(verifie());
        }
        QTest::keyClicks(&volet, QStringLiteral("N1"));
        QTest::keyClick(&volet, Qt::Key_Return);
        QVERIFY(verifie());
        const QString chemin = m_dossier.filePath(QStringLiteral("q.iso"));
        EcritFichierTexte(chemin, T("%"));
        volet.LoadFile(chemin, RichTextBox::TexteSimple);
        QCOMPARE(volet.SelFontSize(), 9.75);
        QVERIFY(volet.SelBold() && !volet.SelItalic());
    }

    void chargeDuTexteRiche()
    {
        RichTextBox volet;
        QSignalSpy changements(&volet, &RichTextBox::Change);
        volet.LoadFile(QStringLiteral(DONNEES) + QStringLiteral("/wordpad.rtf"), RichTextBox::TexteRiche);
        QCOMPARE(changements.size(), 1);
        QVERIFY(volet.Text().startsWith(T("%\r\nO1234 (Bride \xE9paul\xE9"
                                          "e)\r\n")));
        volet.setSelStart(static_cast<int>(volet.Text().indexOf(T("Bride"))) + 1);
        QVERIFY(volet.SelBold());
        QCOMPARE(volet.SelFontName(), QStringLiteral("Courier New"));
        QCOMPARE(volet.SelColor(), QColor(255, 0, 0));
    }

    void unRefusGardeLeTexte()
    {
        const QString simple = m_dossier.filePath(QStringLiteral("simple.rtf"));
        EcritFichierTexte(simple, T("%\r\nM30"));
        RichTextBox volet;
        volet.setText(T("garde\n"));
        const auto numero = [&volet](const QString &chemin, int format) {
            try {
                volet.LoadFile(chemin, format);
            } catch (const Erreur &erreur) {
                return erreur.Numero();
            }
            return 0;
        };
        QCOMPARE(numero(simple, RichTextBox::TexteRiche), Erreur::FormatRefuse);
        QCOMPARE(numero(m_dossier.filePath(QStringLiteral("absent")), RichTextBox::TexteSimple),
                 Erreur::FichierIntrouvable);
        QCOMPARE(volet.Text(), T("garde\n"));
    }

    // Without line ends every piece lengthens one line: laying it out each time would never end.
    void neMetPasEnPageUneLigneSansFin()
    {
        RichTextBox volet;
        const QString bloc(5000, QLatin1Char('X'));
        for (int i = 0; i < 5; ++i) {
            volet.Ajoute(bloc);
            QVERIFY(volet.FinitPar(T("XX")));
            QCOMPARE(volet.document()->lastBlock().layout()->lineCount(), 0);
        }
        volet.RetireFin(1);
        QCOMPARE(volet.Text().size(), 24999);
        QCOMPARE(volet.document()->lastBlock().layout()->lineCount(), 0);
    }

    // A long reception in a pane that is shown: it follows the end, and lines shown and gone by are laid out anew.
    void suitUneLongueReception()
    {
        RichTextBox volet;
        volet.resize(300, 200);
        volet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&volet));
        QString recu;
        const QString bloc = T("N10 G1 X12.345\r\n").repeated(100);
        for (int i = 0; i < 150; ++i) {
            volet.Ajoute(bloc.left(7));
            volet.Ajoute(bloc.mid(7));
            recu += bloc;
        }
        QCOMPARE(volet.Text(), recu);
        QScrollBar *barre = volet.verticalScrollBar();
        QVERIFY(barre->maximum() > 14900);
        QCOMPARE(barre->value(), barre->maximum());
        const QImage image = volet.grab().toImage();
        barre->setValue(10);
        QVERIFY(volet.cursorForPosition({5, 5}).blockNumber() == 10);
        volet.Ajoute(bloc);
        QCOMPARE(barre->value(), 10);
        barre->setValue(barre->maximum());
        QCOMPARE(volet.grab().toImage().size(), image.size());
    }
};

QTEST_MAIN(TestRichTextBox)
#include "TestRichTextBox.moc"
