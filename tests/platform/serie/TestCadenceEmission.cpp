#include "platform/serie/CadenceEmission.h"

#include <QTest>

#include <functional>

using namespace std::chrono_literals;

// The clock is a number here; nothing waits.
class TestCadenceEmission : public QObject
{
    Q_OBJECT

    CadenceEmission m_cadence;
    CadenceEmission::Instant m_t;

    /// The PC hands over all that it may for a while, each time that much after it should have.
    void Sert(CadenceEmission::Duree duree, CadenceEmission::Duree retard)
    {
        for (const auto fin = m_t + duree; m_t < fin;) {
            m_cadence.Remet(m_cadence.Place(m_t, 0), m_t);
            m_t += m_cadence.AvantRemise(m_t) + retard;
        }
    }

private Q_SLOTS:
    void init()
    {
        m_cadence = CadenceEmission();
        m_t = CadenceEmission::Instant(1h);
    }

    // Handing over whenever the cadence asks for it never lets the line idle and never exceeds the lead.
    void ligneToujoursOccupee()
    {
        // Speed, bits a character, lead; the time by which each turn comes too late.
        const std::tuple<int, double, int, std::chrono::microseconds> cas[] = {
            {110, 11, 6, 8ms},        {9600, 10, 6, 5ms},     {19200, 10, 6, 2500us},
            {115200, 10, 40, 2500us}, {115200, 8.5, 47, 0ms}, {128000, 10, 44, 2500us}};
        for (const auto &[vitesse, bits, avance, retard] : cas) {
            init();
            m_cadence.Regle(vitesse, bits);
            QCOMPARE(m_cadence.Avance(), avance);
            const auto debut = m_t;
            qint64 remis = 0;
            while (remis < 20000) {
                const int place = m_cadence.Place(m_t, 0);
                QVERIFY(place > 0);
                m_cadence.Remet(place, m_t);
                remis += place;
                QCOMPARE(m_t + m_cadence.Reste(m_t), debut + m_cadence.Temps(remis));
                QVERIFY(m_cadence.Reste(m_t) <= m_cadence.Temps(avance));
                m_t += m_cadence.AvantRemise(m_t) + retard;
            }
            const double attendu = 20000 * bits / vitesse;
            QVERIFY(qAbs(std::chrono::duration<double>(m_cadence.Temps(20000)).count() / attendu - 1) < 1e-4);
        }
    }

    // A PC that is always late gets a longer lead, up to a bound; one that has become punctual the short one again.
    void avanceSuitLePc()
    {
        for (const auto &[vitesse, courte, longue] :
             {std::tuple(300, 6, 9), {9600, 6, 9}, {19200, 6, 9}, {38400, 13, 19}, {115200, 40, 57}}) {
            m_cadence.Regle(vitesse, 10);
            Sert(20s, m_cadence.Temps(courte) + 4ms);
            QCOMPARE(m_cadence.Avance(), longue);
            Sert(6s, 0ms);
            QVERIFY(m_cadence.Avance() < longue && m_cadence.Avance() > courte);
            Sert(15s, 0ms);
            QCOMPARE(m_cadence.Avance(), courte);
        }
    }

    // Neither a lone hiccup makes it longer, nor what stands still on the machine's account, nor a pause of the text.
    void avanceResteCourte()
    {
        const std::function<void()> cas[] = {
            [this] { m_t += 800ms; },
            [this] { m_t += 2s; },
            [this] { m_cadence.Empeche(), m_t += 30ms; },
            [this] { m_cadence.Suspend(m_t), m_cadence.Reprend(m_t += 30ms), m_t += 30ms; },
        };
        m_cadence.Regle(9600, 10);
        for (const auto &action : cas) {
            for (int fois = 0; fois < 10; ++fois) {
                Sert(&action == cas ? 1s : 10ms, 0ms);
                action();
                QCOMPARE(m_cadence.Avance(), 6);
            }
        }
    }

    void retardEtSuspension()
    {
        m_cadence.Regle(9600, 10);
        m_cadence.Remet(6, m_t);
        QCOMPARE(m_cadence.Place(m_t + m_cadence.Temps(4) - 1ns, 0), 3);
        QCOMPARE(m_cadence.Place(m_t + m_cadence.Temps(4), 0), 4);
        QCOMPARE(m_cadence.Place(m_t + 1min, 0), 6); // silence earns no more than the lead
        QCOMPARE(m_cadence.Place(m_t + 1min, 4), 2); // what the system holds counts
        QCOMPARE(m_cadence.Place(m_t + 1min, 4000), 0);
        m_cadence.Remet(6, m_t + 1min);
        m_cadence.Suspend(m_t + 1min + m_cadence.Temps(2));
        m_cadence.Suspend(m_t + 2min);
        QCOMPARE(m_cadence.Place(m_t + 2min, 0), 0);
        QCOMPARE(m_cadence.Reste(m_t + 2min), m_cadence.Temps(4));
        m_cadence.Reprend(m_t + 3min);
        m_cadence.Reprend(m_t + 3min);
        QCOMPARE(m_cadence.Place(m_t + 3min, 0), 2);
        QCOMPARE(m_cadence.Reste(m_t + 3min + m_cadence.Temps(4)), 0ns);
    }
};

QTEST_GUILESS_MAIN(TestCadenceEmission)
#include "TestCadenceEmission.moc"
