#include "platform/CadenceEmission.h"

#include <QTest>

using namespace std::chrono_literals;

// The clock is a number here; nothing waits.
class TestCadenceEmission : public QObject
{
    Q_OBJECT

    static constexpr CadenceEmission::Instant m_t{1h};

private Q_SLOTS:
    // Handing over whenever the cadence asks for it never lets the line idle and never exceeds the lead.
    void ligneToujoursOccupee()
    {
        // Speed, bits a character, lead; the time by which each turn comes too late.
        const std::tuple<int, double, int, std::chrono::microseconds> cas[] = {
            {110, 11, 16, 8ms}, {9600, 10, 16, 8ms}, {115200, 10, 138, 0ms}, {115200, 8.5, 162, 8ms}};
        for (const auto &[vitesse, bits, avance, retard] : cas) {
            CadenceEmission cadence;
            cadence.Regle(vitesse, bits);
            QCOMPARE(cadence.Avance(), avance);
            auto t = m_t;
            qint64 remis = 0;
            while (remis < 20000) {
                const int place = cadence.Place(t, 0);
                QVERIFY(place > 0);
                cadence.Remet(place, t);
                remis += place;
                QCOMPARE(t + cadence.Reste(t), m_t + cadence.Temps(remis));
                QVERIFY(cadence.Reste(t) <= cadence.Temps(avance));
                t += cadence.AvantRemise(t) + retard;
            }
            const double attendu = 20000 * bits / vitesse;
            QVERIFY(qAbs(std::chrono::duration<double>(cadence.Temps(20000)).count() / attendu - 1) < 1e-4);
        }
    }

    void retardEtSuspension()
    {
        CadenceEmission cadence;
        cadence.Regle(9600, 10);
        cadence.Remet(16, m_t);
        QCOMPARE(cadence.Place(m_t + cadence.Temps(4) - 1ns, 0), 3);
        QCOMPARE(cadence.Place(m_t + cadence.Temps(4), 0), 4);
        QCOMPARE(cadence.Place(m_t + 1min, 0), 16); // silence earns no more than the lead
        QCOMPARE(cadence.Place(m_t + 1min, 10), 6); // what the system holds counts
        QCOMPARE(cadence.Place(m_t + 1min, 4000), 0);
        cadence.Remet(10, m_t + 1min);
        cadence.Suspend(m_t + 1min + cadence.Temps(4));
        cadence.Suspend(m_t + 2min);
        QCOMPARE(cadence.Place(m_t + 2min, 0), 0);
        QCOMPARE(cadence.Reste(m_t + 2min), cadence.Temps(6));
        cadence.Reprend(m_t + 3min);
        cadence.Reprend(m_t + 3min);
        QCOMPARE(cadence.Place(m_t + 3min, 0), 10);
        QCOMPARE(cadence.Reste(m_t + 3min + cadence.Temps(6)), 0ns);
    }
};

QTEST_GUILESS_MAIN(TestCadenceEmission)
#include "TestCadenceEmission.moc"
