#include "Essais.h"
#include "platform/base/PageCode1252.h"
#include "platform/texte/RichTextBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

namespace {

QString T(const QByteArray &octets)
{
    return TexteDe1252(octets);
}

int NombreDeLignes(QString texte)
{
    texte.replace(T("\r\n"), T("\n")).replace(u'\r', u'\n');
    return static_cast<int>(texte.count(u'\n')) + 1;
}

void Place(RichTextBox &volet, int debut, int longueur)
{
    volet.setSelStart(debut);
    volet.setSelLength(longueur);
}

/// True for a position between CR and LF, which stands for the whole line end.
bool Coupe(const QString &modele, int place)
{
    return place > 0 && place < modele.size() && modele[place - 1] == u'\r' && modele[place] == u'\n';
}

/// long_: a line may take several rows.
QString TexteAuHasard(QRandomGenerator &hasard, bool long_)
{
    static const QByteArrayList morceaux{"\r\n", "\r", "\n", "N10 X1", "%", "\t", "\xE9\xA0", QByteArray(1500, 'X')};
    QString texte;
    for (int n = hasard.bounded(4); n >= 0; --n)
        texte += T(morceaux[hasard.bounded(static_cast<int>(morceaux.size()) - (long_ ? 0 : 1))]);
    return texte;
}

} // namespace

class TestRichTextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The pane against a plain string, under edits that split and join line ends of every kind and rows of long lines.
    void suitUnModele()
    {
        QRandomGenerator hasard(1);
        RichTextBox volet;
        QString modele;
        for (int i = 0; i < 4000; ++i) {
            const auto passe = Passe(QString::number(i));
            if (i % 250 == 0) {
                volet.setText(QString());
                modele.clear();
            }
            const int taille = static_cast<int>(modele.size());
            const auto apres = [&modele](int place) { return Coupe(modele, place) ? place + 1 : place; };
            int debut = hasard.bounded(taille + 1);
            debut -= Coupe(modele, debut) ? 1 : 0;
            const int fin = apres(debut + hasard.bounded(std::min(6, taille - debut + 1)));
            const QString texte = TexteAuHasard(hasard, i >= 2500);
            const int n = hasard.bounded(5);
            Place(volet, debut, fin - debut);
            QCOMPARE(volet.SelStart(), debut);
            QCOMPARE(volet.SelText(), modele.mid(debut, fin - debut));
            switch (hasard.bounded(7)) {
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
                QTest::keyClick(&volet, Qt::Key_Delete);
                modele.remove(debut, std::max(fin, apres(std::min(debut + 1, taille))) - debut);
                break;
            case 3: {
                const int avant = debut - (debut > 1 && Coupe(modele, debut - 1) ? 2 : std::min(debut, 1));
                QTest::keyClick(&volet, Qt::Key_Backspace);
                modele.remove(fin > debut ? debut : avant, fin > debut ? fin - debut : debut - avant);
                break;
            }
            default:
                volet.setSelText(texte);
                modele.replace(debut, fin - debut, texte);
            }
            QCOMPARE(volet.Text(), modele);
            QVERIFY(volet.blockCount() == NombreDeLignes(modele) || i >= 2500);
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
        Place(volet, 2, 1); // between CR and LF
        QCOMPARE(volet.SelText(), T("\r\n"));
        Place(volet, 0, 7);
        volet.setSelText(T("Z\rZ"));
        QTest::keyClick(&volet, Qt::Key_Enter, Qt::KeypadModifier);
        QTest::keyClick(&volet, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(volet.Text(), T("Z\rZ\r\n\r\n\nd\r"));
        while (volet.document()->isUndoAvailable())
            volet.undo();
        QCOMPARE(volet.Text(), depart);
        while (volet.document()->isRedoAvailable())
            volet.redo();
        QCOMPARE(volet.Text(), T("Z\rZ\r\n\r\n\nd\r"));
    }

    void remplaceCeQueLaLigneNaPas()
    {
        RichTextBox volet;
        volet.setText(QStringLiteral("Ø\u20AC\u2126\U0001F527\u2028a\u2029\uFFFC\uFDD0"));
        QCOMPARE(volet.Text(), QStringLiteral("Ø\u20AC??\r\na\r\n??"));
        QKeyEvent touche(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u2126"));
        QCoreApplication::sendEvent(&volet, &touche);
        QInputMethodEvent saisie;
        saisie.setCommitString(QStringLiteral("\u00E9\u4E2D"));
        QCoreApplication::sendEvent(&volet, &saisie);
        QVERIFY(volet.Text().startsWith(QStringLiteral("?\u00E9?Ø")));
    }

    void copieEtColle()
    {
        RichTextBox volet;
        volet.setFormatCopie(QStringLiteral("application/x-essai"));
        const QString texte = T("a\nb\xA0\t\x80\nc");
        volet.setText(texte);
        volet.selectAll();
        QTest::keyClick(&volet, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), texte);
        QTest::keyClick(&volet, Qt::Key_V, Qt::ControlModifier);
        for (const char *texteAilleurs : {"1\n2\n", "\r3\n"}) {
            auto *ailleurs = new QMimeData; // as another program would put it there
            ailleurs->setText(T(texteAilleurs));
            QGuiApplication::clipboard()->setMimeData(ailleurs);
            volet.paste();
        }
        QCOMPARE(volet.Text(), texte + T("1\r\n2\r\n\r3\n"));
    }

    void chargeDuTexteRiche()
    {
        RichTextBox volet;
        volet.setSelBold(false);
        volet.LoadFile(QStringLiteral(DONNEES) + QStringLiteral("/libreoffice.rtf"), RichTextBox::TexteRiche);
        const auto va = [&volet](const char *mot) { volet.setSelStart(int(volet.Text().indexOf(T(mot))) + 1); };
        va("O4512");
        QVERIFY(volet.SelBold());
        QVERIFY(!volet.SelItalic());
        QVERIFY(!volet.SelUnderline());
        va("N10");
        QVERIFY(!volet.SelBold());
        QCOMPARE(volet.SelFontSize(), 10.0);
        QCOMPARE(volet.SelColor(), QColor(0, 0, 255));
        QCOMPARE(volet.SelFontName(), QStringLiteral("Liberation Mono"));
        va("Z-5");
        QVERIFY(volet.SelUnderline());
        va("M6");
        QVERIFY(volet.SelStrikeThru());
        va("n\xB0");
        QVERIFY(volet.SelItalic());
    }

    // A long reception in a pane that is shown: it follows the end, and lines shown and gone by are laid out anew. One
    // without line ends fills row after row, of which the last one alone is laid out anew, when it is painted.
    void suitUneLongueReception()
    {
        RichTextBox volet;
        volet.resize(300, 200);
        volet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&volet));
        const QString bloc = T("N10 G1 X12.345\r\n").repeated(100);
        for (int i = 0; i < 150; ++i) {
            volet.Ajoute(bloc.left(7));
            volet.Ajoute(bloc.mid(7));
        }
        QCOMPARE(volet.Text(), bloc.repeated(150));
        QScrollBar *barre = volet.verticalScrollBar();
        QCOMPARE(barre->value(), barre->maximum());
        barre->setValue(10);
        QCOMPARE(volet.cursorForPosition({5, 5}).blockNumber(), 10);
        volet.Ajoute(bloc);
        QCOMPARE(barre->value(), 10);
        RichTextBox sansFin;
        for (int i = 0; i < 9; ++i)
            sansFin.Ajoute(QString(300 * i, u'X'));
        sansFin.RetireFin(10800 - 4100);
        QCOMPARE(sansFin.Text(), QString(4100, u'X'));
        QCOMPARE(sansFin.blockCount(), 3);
        sansFin.setSelStart(2048); // where the first row is full
        QTest::keyClick(&sansFin, Qt::Key_Delete);
        QTest::keyClick(&sansFin, Qt::Key_Backspace);
        QCOMPARE(sansFin.Text().size(), 4098);
        sansFin.Ajoute(QString(700, u'X'));
        QCOMPARE(sansFin.document()->lastBlock().layout()->lineCount(), 0);
    }
};

QTEST_MAIN(TestRichTextBox)
#include "TestRichTextBox.moc"
