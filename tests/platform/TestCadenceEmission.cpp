#include "platform/CadenceEmission.h"

#include <QTest>

using namespace std::chrono_literals;

using Duree = CadenceEmission::Duree;

// The clock is a number here; nothing waits.
class TestCadenceEmission : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void avance_data();
    void avance();
    void ligneToujoursOccupee_data();
    void ligneToujoursOccupee();
    void retardSansRafale();
    void systemeRetenu();
    void suspension();

private:
    CadenceEmission::Instant m_t{1h};
};

void TestCadenceEmission::avance_data()
{
    QTest::addColumn<int>("vitesse");
    QTest::addColumn<double>("bits");
    QTest::addColumn<int>("avance");
    QTest::newRow("slow") << 110 << 11.0 << 16;
    QTest::newRow("usual") << 9600 << 10.0 << 16;
    QTest::newRow("fast") << 115200 << 10.0 << 172;
    QTest::newRow("half bits") << 115200 << 8.5 << 203;
}

void TestCadenceEmission::avance()
{
    QFETCH(int, vitesse);
    QFETCH(double, bits);
    QFETCH(int, avance);
    CadenceEmission cadence;
    cadence.Regle(vitesse, bits);
    QCOMPARE(cadence.Avance(), avance);
    QCOMPARE(cadence.Place(m_t, 0), avance);
    // The line time of a long program is exact to the ten-thousandth.
    const double attendu = 20000 * bits / vitesse;
    const double obtenu = std::chrono::duration<double>(cadence.Temps(20000)).count();
    QVERIFY(qAbs(obtenu / attendu - 1) < 1e-4);
}

void TestCadenceEmission::ligneToujoursOccupee_data()
{
    QTest::addColumn<int>("vitesse");
    QTest::addColumn<int>("retard"); // microseconds by which each turn comes too late
    for (const int vitesse : {110, 1200, 9600, 115200, 921600}) {
        for (const int retard : {0, 1000, 8000})
            QTest::addRow("%d, %d us late", vitesse, retard) << vitesse << retard;
    }
}

// Handing over whenever the cadence asks for it never lets the line idle and never exceeds the lead.
void TestCadenceEmission::ligneToujoursOccupee()
{
    QFETCH(int, vitesse);
    QFETCH(int, retard);
    CadenceEmission cadence;
    cadence.Regle(vitesse, 10);
    const CadenceEmission::Instant debut = m_t;
    auto t = debut;
    qint64 remis = 0;
    while (remis < 20000) {
        const int place = cadence.Place(t, 0);
        QVERIFY(place > 0);
        cadence.Remet(place, t);
        remis += place;
        QCOMPARE(t + cadence.Reste(t), debut + cadence.Temps(remis));
        QVERIFY(cadence.Reste(t) <= cadence.Temps(cadence.Avance()));
        t += cadence.AvantRemise(t) + std::chrono::microseconds(retard);
    }
}

void TestCadenceEmission::retardSansRafale()
{
    CadenceEmission cadence;
    cadence.Regle(9600, 10);
    cadence.Remet(16, m_t);
    QCOMPARE(cadence.Place(m_t, 0), 0);
    QCOMPARE(cadence.Place(m_t + cadence.Temps(4) - 1ns, 0), 3);
    QCOMPARE(cadence.Place(m_t + cadence.Temps(4), 0), 4);
    QCOMPARE(cadence.Place(m_t + 10min, 0), 16);
    cadence.Remet(16, m_t + 10min);
    QCOMPARE(cadence.Place(m_t + 10min, 0), 0);
}

void TestCadenceEmission::systemeRetenu()
{
    CadenceEmission cadence;
    cadence.Regle(9600, 10);
    QCOMPARE(cadence.Place(m_t, 10), 6);
    QCOMPARE(cadence.Place(m_t, 16), 0);
    QCOMPARE(cadence.Place(m_t, 4000), 0);
    cadence.Remet(8, m_t);
    QCOMPARE(cadence.Place(m_t, 10), 6);
    QCOMPARE(cadence.Place(m_t, 2), 8);
}

void TestCadenceEmission::suspension()
{
    CadenceEmission cadence;
    cadence.Regle(9600, 10);
    cadence.Reprend(m_t);
    cadence.Remet(10, m_t);
    cadence.Suspend(m_t + cadence.Temps(4));
    cadence.Suspend(m_t + 1min);
    QVERIFY(cadence.Suspendue());
    QCOMPARE(cadence.Place(m_t + 1min, 0), 0);
    QCOMPARE(cadence.Reste(m_t + 1min), cadence.Temps(6));
    cadence.Reprend(m_t + 2min);
    cadence.Reprend(m_t + 2min);
    QCOMPARE(cadence.Place(m_t + 2min, 0), 10);
    QCOMPARE(cadence.Reste(m_t + 2min + cadence.Temps(6)), Duree(0));
}

QTEST_GUILESS_MAIN(TestCadenceEmission)
#include "TestCadenceEmission.moc"
