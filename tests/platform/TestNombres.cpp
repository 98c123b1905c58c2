#include "platform/Erreur.h"
#include "platform/Nombres.h"

#include <QTest>

#include <limits>

class TestNombres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Valeurs_data();
    void Valeurs();
    void Arrondis_data();
    void Arrondis();
    void Reels_data();
    void Reels();
    void Entiers();
};

// What an operator types or a bench sends, well formed or not.
void TestNombres::Valeurs_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<double>("valeur");
    const std::pair<const char *, double> lignes[] = {{"", 0},
                                                      {"abc", 0},
                                                      {" 12 ", 12},
                                                      {"1 2 . 5abc", 12.5},
                                                      {"-.5", -0.5},
                                                      {"+3", 3},
                                                      {"1.2.3", 1.2},
                                                      {"1,5", 1},
                                                      {"--1", 0},
                                                      {"1e3x", 1000},
                                                      {"1e", 1},
                                                      {"12e-1", 1.2},
                                                      {".", 0},
                                                      {"5.", 5},
                                                      {"\t7", 7},
                                                      {"-", 0},
                                                      {"&H1F", 0},
                                                      {"00012", 12},
                                                      {"0x10", 0},
                                                      {"3-2", 3},
                                                      {"1234567890123", 1234567890123.0}};
    for (const auto &[texte, valeur] : lignes)
        QTest::addRow("<%s>", texte) << QString::fromLatin1(texte) << valeur;
}

void TestNombres::Valeurs()
{
    QFETCH(QString, texte);
    QFETCH(double, valeur);
    QCOMPARE(Val(texte), valeur);
}

// Ties go to the even number; what does not fit 16 bits after rounding is refused.
void TestNombres::Arrondis_data()
{
    QTest::addColumn<double>("valeur");
    QTest::addColumn<int>("entier");
    QTest::addColumn<bool>("refuse");
    const struct
    {
        double valeur;
        int entier;
        bool refuse;
    } lignes[] = {{0.5, 0, false},
                  {1.5, 2, false},
                  {2.5, 2, false},
                  {-0.5, 0, false},
                  {-1.5, -2, false},
                  {2.500001, 3, false},
                  {32767.49, 32767, false},
                  {32767.5, 0, true},
                  {-32768.5, -32768, false},
                  {-32768.51, 0, true},
                  {1e300, 0, true},
                  {std::numeric_limits<double>::infinity(), 0, true},
                  {std::numeric_limits<double>::quiet_NaN(), 0, true}};
    for (const auto &[valeur, entier, refuse] : lignes)
        QTest::addRow("%g", valeur) << valeur << entier << refuse;
}

void TestNombres::Arrondis()
{
    QFETCH(double, valeur);
    QFETCH(int, entier);
    QFETCH(bool, refuse);
    if (refuse)
        QVERIFY_EXCEPTION_THROWN(EnEntier(valeur), Erreur);
    else
        QCOMPARE(EnEntier(valeur), entier);
}

void TestNombres::Reels_data()
{
    QTest::addColumn<float>("valeur");
    QTest::addColumn<QString>("texte");
    const std::pair<float, const char *> lignes[] = {{0.0F, "0"},
                                                     {-0.0F, "0"},
                                                     {0.8F, ".8"},
                                                     {-0.8F, "-.8"},
                                                     {1.0F, "1"},
                                                     {12.5F, "12.5"},
                                                     {0.1F, ".1"},
                                                     {100.0F, "100"},
                                                     {1.0F / 3, ".3333333"},
                                                     {123.456F, "123.456"},
                                                     {0.00001F, ".00001"},
                                                     {9999999.0F, "9999999"},
                                                     {16777216.0F, "16777220"},
                                                     {0.99999999F, "1"},
                                                     {-200.05F, "-200.05"}};
    for (const auto &[valeur, texte] : lignes)
        QTest::addRow("%s", texte) << valeur << QString::fromLatin1(texte);
}

void TestNombres::Reels()
{
    QFETCH(float, valeur);
    QFETCH(QString, texte);
    const QLocale ancienne;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); // a comma for the decimals
    QCOMPARE(TexteReel(valeur), texte);
    QLocale::setDefault(ancienne);
}

void TestNombres::Entiers()
{
    QCOMPARE(TexteNombre(0), QStringLiteral(" 0"));
    QCOMPARE(TexteNombre(8018), QStringLiteral(" 8018"));
    QCOMPARE(TexteNombre(-1), QStringLiteral("-1"));
    QVERIFY_EXCEPTION_THROWN(TexteReel(std::numeric_limits<float>::infinity()), Erreur);
}

QTEST_GUILESS_MAIN(TestNombres)
#include "TestNombres.moc"
