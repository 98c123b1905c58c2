#include "platform/DecodeurMarques.h"

#include <QTest>

using Positions = QList<qsizetype>;

class TestDecodeurMarques : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void decode_data();
    void decode();
    void qualifie_data();
    void qualifie();
};

void TestDecodeurMarques::decode_data()
{
    QTest::addColumn<QByteArray>("lus");
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<Positions>("marques");
    QTest::newRow("plain") << QByteArray("N10 G0") << QByteArray("N10 G0") << Positions();
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << QByteArray("a\0b", 3) << Positions();
    QTest::newRow("0xFF") << QByteArray("a\xFF\xFF\0b", 5) << QByteArray("a\xFF\0b", 4) << Positions();
    QTest::newRow("wrong character") << QByteArray("a\xFF\0X"
                                                   "b",
                                                   5)
                                     << QByteArray("aXb") << Positions{1};
    QTest::newRow("break") << QByteArray("\xFF\0\0", 3) << QByteArray("\0", 1) << Positions{0};
    QTest::newRow("wrong 0xFF") << QByteArray("\xFF\0\xFF"
                                              "a",
                                              4)
                                << QByteArray("\xFF"
                                              "a")
                                << Positions{0};
    QTest::newRow("0xFF not doubled") << QByteArray("\xFF"
                                                    "a")
                                      << QByteArray("\xFF"
                                                    "a")
                                      << Positions();
}

// Wherever a reading ends, the result is the same.
void TestDecodeurMarques::decode()
{
    QFETCH(QByteArray, lus);
    QFETCH(QByteArray, octets);
    QFETCH(Positions, marques);
    for (qsizetype coupe = 0; coupe <= lus.size(); ++coupe) {
        DecodeurMarques decodeur;
        const DecodeurMarques::Resultat debut = decodeur.Decode(lus.left(coupe));
        const DecodeurMarques::Resultat suite = decodeur.Decode(lus.mid(coupe));
        Positions toutes = debut.marques;
        for (const qsizetype position : suite.marques)
            toutes.append(debut.octets.size() + position);
        QCOMPARE(debut.octets + suite.octets, octets);
        QCOMPARE(toutes, marques);
    }
}

void TestDecodeurMarques::qualifie_data()
{
    QTest::addColumn<bool>("pause");
    QTest::addColumn<bool>("parite");
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<Positions>("fausses");
    QTest::addColumn<QList<unsigned>>("comptes"); // breaks, framing, parity
    const QByteArray tous("a\0Xb", 4);
    QTest::newRow("break and parity") << true << true << QByteArray("aXb") << Positions{1} << QList<unsigned>{1, 0, 1};
    QTest::newRow("break and framing") << true << false << QByteArray("aXb") << Positions() << QList<unsigned>{1, 1, 0};
    QTest::newRow("parity of a NUL") << false << true << tous << Positions{1, 2} << QList<unsigned>{0, 0, 2};
    QTest::newRow("framing") << false << false << tous << Positions() << QList<unsigned>{0, 2, 0};
}

void TestDecodeurMarques::qualifie()
{
    QFETCH(bool, pause);
    QFETCH(bool, parite);
    CompteursLigne comptes;
    const LectureLigne lecture = QualifieMarques({QByteArray("a\0Xb", 4), {1, 2}}, {pause, parite}, comptes);
    QTEST(lecture.octets, "octets");
    QTEST(lecture.fausses, "fausses");
    QTEST((QList<unsigned>{comptes.pauses, comptes.trame, comptes.parite}), "comptes");
    QVERIFY(lecture.erreur);
}

QTEST_GUILESS_MAIN(TestDecodeurMarques)
#include "TestDecodeurMarques.moc"
