#include "gauges/Lignes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLignes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Coupe();
    void Capacite();
    void Maxi();
};

void TestLignes::Coupe()
{
    const std::pair<QString, QStringList> textes[] = {{u""_s, {u""_s}},
                                                      {u"  G0 X1  "_s, {u"G0 X1"_s}},
                                                      {u"\tG0\t"_s, {u"\tG0\t"_s}}, // a tab is no blank
                                                      {u" A \r\n B \r\n C "_s, {u" A \r"_s, u"\n B \r"_s, u"\n C"_s}},
                                                      {u"A\r\n"_s, {u"A\r"_s, u"\n"_s}},
                                                      {u"\r\n\r\nA"_s, {u"\r"_s, u"\n\r"_s, u"\nA"_s}},
                                                      {u"A\rB\nC\n\rD"_s, {u"A\rB\nC\n\rD"_s}},
                                                      {u"A\r\r\nB"_s, {u"A\r\r"_s, u"\nB"_s}}};
    for (const auto &[texte, lignes] : textes) {
        std::fill(Lignes.begin() + 1, Lignes.end(), u"before"_s);
        CalculeLigne(texte);
        QCOMPARE(QStringList(Lignes.begin() + 1, Lignes.begin() + 1 + NbLignes), lignes);
        QVERIFY(std::all_of(Lignes.begin() + 1 + NbLignes, Lignes.end(), [](const QString &l) { return l.isEmpty(); }));
    }
}

// One line too many fills the table and leaves the count of the text before it.
void TestLignes::Capacite()
{
    const QString pleine = u"N\r\n"_s.repeated(CapaciteLignes - 1) + u"FIN"_s;
    CalculeLigne(pleine);
    QCOMPARE(NbLignes, CapaciteLignes);
    QCOMPARE(Lignes.back(), u"\nFIN"_s);

    CalculeLigne(u"A\r\nB"_s);
    CalculeLigne(pleine + u"\r\n"_s);
    QCOMPARE(NbLignes, 2);
    QCOMPARE(Lignes.back(), u"\nFIN\r"_s);
}

// The last line that holds more than blanks; a line end is no blank.
void TestLignes::Maxi()
{
    VideLignes();
    for (const auto &[ligne, texte, maxi] :
         {std::tuple{1, u"   "_s, 0}, {3, u" A"_s, 3}, {4, u"  "_s, 3}, {CapaciteLignes, u"\n"_s, CapaciteLignes}}) {
        Lignes[std::size_t(ligne)] = texte;
        CalculeMaxi();
        QCOMPARE(LigneMaxi, maxi);
    }
}

QTEST_GUILESS_MAIN(TestLignes)
#include "TestLignes.moc"
