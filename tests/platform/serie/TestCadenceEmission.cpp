#include "Essais.h"
#include "platform/serie/CadenceEmission.h"

using namespace std::chrono_literals;

namespace {

/// Speed, bits a character, lead; the time by which each turn comes too late.
const std::tuple<const char *, int, double, int, std::chrono::microseconds> Lignes[] = {
    {"110", 110, 11, 6, 8ms},           {"9600", 9600, 10, 6, 5ms},       {"19200", 19200, 10, 6, 2500us},
    {"115200", 115200, 10, 40, 2500us}, {"5 bits", 115200, 8.5, 47, 0ms}, {"128000", 128000, 10, 44, 2500us}};

/// Speed, and the lead of a punctual PC and of one that is always late.
const std::tuple<const char *, int, int, int> Avances[] = {{"300", 300, 6, 9},
                                                           {"9600", 9600, 6, 9},
                                                           {"19200", 19200, 6, 9},
                                                           {"38400", 38400, 13, 19},
                                                           {"115200", 115200, 40, 57}};

/// What stands still for some time while the PC serves the line, and how long it has served before.
const std::tuple<const char *, std::chrono::milliseconds, void (*)(CadenceEmission &, CadenceEmission::Instant &)>
    Arrets[] = {
        {"a lone hiccup", 1s, [](CadenceEmission &, auto &t) { t += 800ms; }},
        {"a pause of the text", 10ms, [](CadenceEmission &, auto &t) { t += 2s; }},
        {"a device that takes nothing", 10ms, [](CadenceEmission &c, auto &t) { c.Empeche(), t += 30ms; }},
        {"a machine that holds", 10ms,
         [](CadenceEmission &c, auto &t) { c.Suspend(t), c.Reprend(t += 30ms), t += 30ms; }},
};

} // namespace

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
    void ligneToujoursOccupee_data() { Rangees(Lignes); }
    void ligneToujoursOccupee()
    {
        const auto &[nom, vitesse, bits, avance, retard] = Rangee(Lignes);
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

    // A PC that is always late gets a longer lead, up to a bound; one that has become punctual the short one again.
    void avanceSuitLePc_data() { Rangees(Avances); }
    void avanceSuitLePc()
    {
        const auto &[nom, vitesse, courte, longue] = Rangee(Avances);
        m_cadence.Regle(vitesse, 10);
        Sert(20s, m_cadence.Temps(courte) + 4ms);
        QCOMPARE(m_cadence.Avance(), longue);
        Sert(6s, 0ms);
        QVERIFY(m_cadence.Avance() < longue);
        QVERIFY(m_cadence.Avance() > courte);
        Sert(15s, 0ms);
        QCOMPARE(m_cadence.Avance(), courte);
    }

    // None of these makes it longer.
    void avanceResteCourte_data() { Rangees(Arrets); }
    void avanceResteCourte()
    {
        const auto &[nom, avant, arret] = Rangee(Arrets);
        m_cadence.Regle(9600, 10);
        for (int fois = 0; fois < 10; ++fois) {
            Sert(avant, 0ms);
            arret(m_cadence, m_t);
            QCOMPARE(m_cadence.Avance(), 6);
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
