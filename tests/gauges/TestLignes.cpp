#include "gauges/Lignes.h"

#include <QTest>

class TestLignes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Coupe_data();
    void Coupe();
    void Capacite();
    void Maxi();
};

void TestLignes::Coupe_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("lignes");
    const auto ligne = [](const char *nom, const char *texte, std::initializer_list<const char *> lignes) {
        QStringList attendues;
        for (const char *attendue : lignes)
            attendues << QString::fromLatin1(attendue);
        QTest::newRow(nom) << QString::fromLatin1(texte) << attendues;
    };
    ligne("empty", "", {""});
    ligne("one line, blanks at both ends", "  G0 X1  ", {"G0 X1"});
    ligne("a tab is no blank", "\tG0\t", {"\tG0\t"});
    ligne("three lines", " A \r\n B \r\n C ", {" A \r", "\n B \r", "\n C"});
    ligne("last CR LF", "A\r\n", {"A\r", "\n"});
    ligne("empty lines", "\r\n\r\nA", {"\r", "\n\r", "\nA"});
    ligne("lone CR, lone LF", "A\rB\nC\n\rD", {"A\rB\nC\n\rD"});
    ligne("CR CR LF", "A\r\r\nB", {"A\r\r", "\nB"});
}

void TestLignes::Coupe()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, lignes);
    std::fill(Lignes.begin() + 1, Lignes.end(), QStringLiteral("before"));
    CalculeLigne(texte);
    QCOMPARE(NbLignes, lignes.size());
    for (int i = 1; i <= NbLignes; ++i)
        QCOMPARE(Lignes[std::size_t(i)], lignes[i - 1]);
    QVERIFY(
        std::all_of(Lignes.begin() + NbLignes + 1, Lignes.end(), [](const QString &reste) { return reste.isEmpty(); }));
}

// One line too many fills the table and leaves the count of the text before it.
void TestLignes::Capacite()
{
    const QString pleine = QStringLiteral("N\r\n").repeated(CapaciteLignes - 1) + QStringLiteral("FIN");
    CalculeLigne(pleine);
    QCOMPARE(NbLignes, CapaciteLignes);
    QCOMPARE(Lignes.back(), QStringLiteral("\nFIN"));

    CalculeLigne(QStringLiteral("A\r\nB"));
    CalculeLigne(pleine + QStringLiteral("\r\n"));
    QCOMPARE(NbLignes, 2);
    QCOMPARE(Lignes.back(), QStringLiteral("\nFIN\r"));
}

void TestLignes::Maxi()
{
    VideLignes();
    CalculeMaxi();
    QCOMPARE(LigneMaxi, 0);
    Lignes[1] = QStringLiteral("   ");
    CalculeMaxi();
    QCOMPARE(LigneMaxi, 0);
    Lignes[3] = QStringLiteral(" A");
    Lignes[4] = QStringLiteral("  ");
    CalculeMaxi();
    QCOMPARE(LigneMaxi, 3);
    Lignes[CapaciteLignes] = QStringLiteral("\n"); // a line end is no blank
    CalculeMaxi();
    QCOMPARE(LigneMaxi, CapaciteLignes);
}

QTEST_GUILESS_MAIN(TestLignes)
#include "TestLignes.moc"
