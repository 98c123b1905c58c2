#include "gauges/Lignes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLignes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // One line too many fills the table and leaves the count of the text before it. How lines are cut is seen at the
    // machine.
    void Capacite()
    {
        const QString pleine = u"N\r\n"_s.repeated(CapaciteLignes - 1) + u"FIN"_s;
        CalculeLigne(pleine);
        QCOMPARE(NbLignes, CapaciteLignes);
        QCOMPARE(Lignes.back(), u"\nFIN"_s);
        CalculeLigne(u"A\r\nB"_s);
        CalculeMaxi();
        QCOMPARE(LigneMaxi, 2); // the rest is empty
        CalculeLigne(pleine + u"\r\n"_s);
        QCOMPARE(NbLignes, 2);
        QCOMPARE(Lignes.back(), u"\nFIN\r"_s);
    }

    // The last line that holds more than blanks; a line end is no blank.
    void Maxi()
    {
        VideLignes();
        for (const auto &[ligne, texte, maxi] : {std::tuple{1, u"   "_s, 0}, {3, u" A"_s, 3}, {4, u"  "_s, 3}}) {
            Lignes[std::size_t(ligne)] = texte;
            CalculeMaxi();
            QCOMPARE(LigneMaxi, maxi);
        }
        Lignes.back() = u"\n"_s;
        CalculeMaxi();
        QCOMPARE(LigneMaxi, CapaciteLignes);
    }
};

QTEST_GUILESS_MAIN(TestLignes)
#include "TestLignes.moc"
