#include "Poste.h"

#include "comconfig/FrmCaract.h"
#include "comconfig/ParamCom.h"
#include "shell/FrmPrinc.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestFrmCaract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Gestures on the chain CR LF: numbers press the character's button, "=x" applies x as the free character, the rest
    // are names of buttons. Codes, label and undo; behind the chain no code is left.
    void Compose()
    {
        const Poste poste(0);
        for (const auto &[gestes, chaine, libelle, annulable] :
             {std::tuple{u"19"_s, u"\r\n\x13"_s, u"CRLFXoff"_s, true},
              {u"19 Command3"_s, u"\r\n"_s, u"CRLF"_s, false},
              {u"19 17 Command3 Command3"_s, u"\r\n\x13"_s, u"CRLFXoff"_s, false},
              {u"9 Command2 Command3"_s, {}, {}, false},
              {u"Command2 0"_s, u"\0"_s, u"Nul"_s, true},
              {u"Command2 38 34 30 31 32 127"_s, u"&\"\x1E\x1F \x7F"_s, u"&&\"usrsEsp\x7F"_s, true},
              {u"Command2 Command4 2 Command5"_s, u"\u0002\u0002\u0003"_s, u"\u0002stx\u0003"_s, true},
              {u"Command2 =é =€ =& =Ω ="_s, u"é€&"_s, u"é€&"_s, true}}) {
            ParamCom.CarFinLig = {0, '\r', '\n'};
            ParamCom.NbCarFinLig = 2;
            const FrmCaract dialogue(ChaineLigne, u"CRLF"_s, frmPrinc);
            QVERIFY(!dialogue.Command3->isEnabled());
            for (const QString &geste : gestes.split(u' ')) {
                const bool libre = geste.startsWith(u'=');
                dialogue.Text1->setText(libre ? geste.mid(1) : QString());
                const QString nom = libre ? u"Command6"_s : geste.startsWith(u'C') ? geste : u"Car_"_s + geste;
                dialogue.findChild<QPushButton *>(nom)->click();
            }
            QCOMPARE(ChaineCarFinLig(), chaine);
            ParamCom.NbCarFinLig = 100;
            QCOMPARE(ChaineCarFinLig(), chaine.leftJustified(100, QChar()));
            QCOMPARE(dialogue.Label1->text(), libelle);
            QCOMPARE(dialogue.Command3->isEnabled(), annulable);
        }
    }

    // The 101st character finds every way shut; an undo opens them again.
    void Pleine()
    {
        const Poste poste(0);
        ParamCom.NbCarFinLig = 99;
        const FrmCaract dialogue(ChaineLigne, {}, frmPrinc);
        dialogue.Text1->setText(u"é"_s);
        for (const bool ouvertes : {true, false, true}) {
            QPushButton *const bouton = dialogue.findChild<QPushButton *>(u"Car_13"_s);
            for (QPushButton *const voie : {bouton, dialogue.Command4, dialogue.Command6})
                QCOMPARE(voie->isEnabled(), ouvertes);
            (ouvertes ? dialogue.Command5 : dialogue.Command3)->click();
            QCOMPARE(ParamCom.NbCarFinLig, ouvertes ? 100 : 99);
        }
    }

    // Every button says what it is, in the order of the codes, sixteen a row, and is wide enough for it. The names of
    // characters in a tool tip are no tags.
    void Boutons()
    {
        const Poste poste(1);
        FrmCaract dialogue(ChaineLigne, u"A&&\u0003"_s, frmPrinc);
        dialogue.show();
        for (int code = 0; code < 128; ++code) {
            const auto *const bouton = dialogue.findChild<QPushButton *>(u"Car_%1"_s.arg(code));
            const auto *const premier = dialogue.findChild<QPushButton *>(u"Car_%1"_s.arg(code / 16 * 16));
            QVERIFY(!bouton->text().isEmpty() && bouton->toolTip().startsWith(QString::number(code) + u" = "_s));
            QVERIFY(bouton->width() >= bouton->fontMetrics().size(Qt::TextShowMnemonic, bouton->text()).width() + 4);
            QCOMPARE(bouton->pos(), QPoint(bouton->x(), premier->y()));
        }
        QCOMPARE(dialogue.findChild<QPushButton *>(u"Car_17"_s)->toolTip(), u"17 = 11h  DC1"_s);
        QCOMPARE(dialogue.Label1->toolTip(), u"A&<ETX>"_s);
        dialogue.Label1->MontreChaine(u"\u0019"_s);
        QCOMPARE(dialogue.Label1->toolTip(), u"&lt;EM&gt;"_s);
    }
};

QTEST_MAIN(TestFrmCaract)
#include "TestFrmCaract.moc"
