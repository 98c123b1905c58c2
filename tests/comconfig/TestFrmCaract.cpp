#include "Poste.h"

#include "comconfig/FrmCaract.h"
#include "comconfig/ParamCom.h"
#include "shell/FrmPrinc.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A chain before and after some gestures: numbers press the character's button, "=x" applies x as the free character,
/// the rest are names of buttons.
struct Cas
{
    QList<int> avant;
    QString libelleAvant;
    QString gestes;
    QList<int> apres;
    QString libelleApres;
    bool annulable;
};

} // namespace

class TestFrmCaract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Compose();
    void Pleine();
    void Boutons();
};

// Codes, label and undo, for each of the three chains; the other two stay empty. Behind the chain no code is left.
void TestFrmCaract::Compose()
{
    const Poste poste(0);
    const Cas cas[] = {
        {{}, {}, u"13 10"_s, {13, 10}, u"CRLF"_s, true},
        {{13, 10}, u"CRLF"_s, u"19"_s, {13, 10, 19}, u"CRLFXoff"_s, true},
        {{13, 10}, u"CRLF"_s, u"19 Command3"_s, {13, 10}, u"CRLF"_s, false},
        {{13, 10}, u"CRLF"_s, u"19 17 Command3 Command3"_s, {13, 10, 19}, u"CRLFXoff"_s, false},
        {{13, 10}, u"CRLF"_s, u"0 Command2 Command3"_s, {}, {}, false},
        {{13, 10}, u"CRLF"_s, u"Command2 0"_s, {0}, u"Nul"_s, true},
        {{}, {}, u"38 34 30 31 32 127"_s, {38, 34, 30, 31, 32, 127}, u"&&\"usrsEsp\x7F"_s, true},
        {{}, {}, u"Command4 2 Command5"_s, {2, 2, 3}, u"\u0002stx\u0003"_s, true},
        {{}, {}, u"=é =€ =& =Ω ="_s, {233, 128, 38}, u"é€&"_s, true},
    };
    using C = ConfigurationCom;
    const std::tuple<TypeChaine, int C::*, C::Codes C::*> chaines[] = {
        {ChaineDebut, &C::NbCarDebProg, &C::CarDebProg},
        {ChaineLigne, &C::NbCarFinLig, &C::CarFinLig},
        {ChaineTransfert, &C::NbCarFinTrans, &C::CarFinTrans}};
    for (const auto &[type, nombre, codes] : chaines) {
        for (const Cas &c : cas) {
            ParamCom = {};
            ParamCom.*nombre = int(c.avant.size());
            std::copy(c.avant.begin(), c.avant.end(), (ParamCom.*codes).begin() + 1);
            FrmCaract dialogue(type, c.libelleAvant, frmPrinc);
            QVERIFY(!dialogue.Command3->isEnabled());
            for (const QString &geste : c.gestes.split(u' ')) {
                if (geste.startsWith(u'='))
                    dialogue.Text1->setText(geste.mid(1));
                const QString nom = geste.startsWith(u'=')   ? u"Command6"_s
                                    : geste.startsWith(u'C') ? geste
                                                             : u"Car_"_s + geste;
                dialogue.findChild<QPushButton *>(nom)->click();
            }
            C attendue;
            attendue.*nombre = int(c.apres.size());
            std::copy(c.apres.begin(), c.apres.end(), (attendue.*codes).begin() + 1);
            for (const auto &autre : chaines) {
                QCOMPARE(ParamCom.*std::get<1>(autre), attendue.*std::get<1>(autre));
                QVERIFY2(ParamCom.*std::get<2>(autre) == attendue.*std::get<2>(autre), qPrintable(c.gestes));
            }
            QCOMPARE(dialogue.Label1->text(), c.libelleApres);
            QCOMPARE(dialogue.Command3->isEnabled(), c.annulable);
        }
    }
}

// The 101st character finds every way shut; an undo opens them again. A count that a damaged file left is held.
void TestFrmCaract::Pleine()
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
    for (const auto &[compte, tenu] : {std::pair{101, 100}, {-3, 0}}) {
        ParamCom.NbCarFinTrans = compte;
        const FrmCaract abimee(ChaineTransfert, {}, frmPrinc);
        QCOMPARE(ParamCom.NbCarFinTrans, tenu);
    }
}

// Every button says what it is, in the order of the codes, sixteen a row, and is wide enough for it.
void TestFrmCaract::Boutons()
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
}

QTEST_MAIN(TestFrmCaract)
#include "TestFrmCaract.moc"
