#include "platform/Erreur.h"
#include "platform/ErreurPort.h"
#include "platform/ReglagePort.h"

#include <QTest>

class TestReglagePort : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lit_data();
    void lit();
    void refuse_data();
    void refuse();
};

void TestReglagePort::lit_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("vitesse");
    QTest::addColumn<Parite>("parite");
    QTest::addColumn<double>("bits");
    QTest::newRow("usual") << "9600,n,8,1" << 9600 << Parite::Aucune << 10.0;
    QTest::newRow("machine tool") << "4800,e,7,2" << 4800 << Parite::Paire << 11.0;
    QTest::newRow("capital, blanks") << " 110 , O, 7 ,1" << 110 << Parite::Impaire << 10.0;
    QTest::newRow("telex") << "50,m,5,1.5" << 50 << Parite::Marque << 8.5;
    QTest::newRow("fast") << "256000,s,8,2" << 256000 << Parite::Espace << 12.0;
}

void TestReglagePort::lit()
{
    QFETCH(QString, texte);
    const ReglagePort reglage = LitReglagePort(texte);
    QTEST(reglage.vitesse, "vitesse");
    QTEST(reglage.parite, "parite");
    QTEST(reglage.BitsParCaractere(), "bits");
}

void TestReglagePort::refuse_data()
{
    QTest::addColumn<int>("numero");
    for (const char *texte : {"", ",,,", "rapide,n,8,1", "0,n,8,1", "-9600,n,8,1", "49,n,8,1", "99999999999,n,8,1"})
        QTest::newRow(texte) << ErreurPort::Vitesse;
    for (const char *texte : {"9600,n,4,1", "9600,n,9,1", "9600,n,,1"})
        QTest::newRow(texte) << ErreurPort::BitsDonnees;
    for (const char *texte : {"9600,x,8,1", "9600,,8,1", "9600,even,8,1", "9600,n,8,3", "9600,n,8", "9600,n,8,1.5",
                              "9600,n,5,2", "9600,n,8,1,1"})
        QTest::newRow(texte) << ErreurPort::Reglage;
}

void TestReglagePort::refuse()
{
    QFETCH(int, numero);
    try {
        LitReglagePort(QString::fromLatin1(QTest::currentDataTag()));
        QFAIL("accepted");
    } catch (const Erreur &erreur) {
        QCOMPARE(erreur.Numero(), numero);
    }
}

QTEST_GUILESS_MAIN(TestReglagePort)
#include "TestReglagePort.moc"
