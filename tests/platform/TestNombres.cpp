#include "platform/Erreur.h"
#include "platform/Nombres.h"

#include <QTest>

#include <limits>

class TestNombres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Valeurs();
    void Arrondis();
    void Textes();
};

namespace {

constexpr int Refuse = 99999;

int EnEntierOuRefuse(double valeur)
{
    try {
        return EnEntier(valeur);
    } catch (const Erreur &erreur) {
        return erreur.Numero() == Erreur::Depassement ? Refuse : -Refuse;
    }
}

} // namespace

// What an operator types or a bench sends, well formed or not.
void TestNombres::Valeurs()
{
    QList<double> valeurs;
    for (const char *texte :
         {"",      "abc", " 12 ", "1 2 . 5abc", "-.5", "+3",   "1.2.3", "1,5",  "--1", "1e3x",         "1e",
          "12e-1", ".",   "5.",   "\t7",        "-",   "&H1F", "00012", "0x10", "3-2", "1234567890123"})
        valeurs << Val(QString::fromLatin1(texte));
    QCOMPARE(valeurs, (QList<double>{0,   0, 12, 12.5, -0.5, 3, 1.2, 1, 0, 1000,           1,
                                     1.2, 0, 5,  7,    0,    0, 12,  0, 3, 1234567890123.0}));
}

// Ties go to the even number; what does not fit 16 bits after rounding is refused.
void TestNombres::Arrondis()
{
    QList<int> entiers;
    for (const double valeur : {0.5, 1.5, 2.5, -0.5, -1.5, 2.500001, 32767.49, 32767.5, -32768.5, -32768.51, 1e300,
                                std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        entiers << EnEntierOuRefuse(valeur);
    QCOMPARE(entiers, (QList<int>{0, 2, 2, 0, -2, 3, 32767, Refuse, -32768, Refuse, Refuse, Refuse, Refuse}));
}

// At most 7 digits, no zero ahead of the point, a point in every locale.
void TestNombres::Textes()
{
    const QLocale ancienne;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); // a comma for the decimals
    QStringList textes;
    for (const float valeur : {0.0F, -0.0F, 0.8F, -0.8F, 1.0F, 12.5F, 0.1F, 100.0F, 1.0F / 3, 123.456F, 0.00001F,
                               9999999.0F, 16777216.0F, 0.99999999F, -200.05F})
        textes << TexteReel(valeur);
    QLocale::setDefault(ancienne);
    QCOMPARE(textes.join(u' '),
             QStringLiteral("0 0 .8 -.8 1 12.5 .1 100 .3333333 123.456 .00001 9999999 16777220 1 -200.05"));
    QVERIFY_EXCEPTION_THROWN(TexteReel(std::numeric_limits<float>::infinity()), Erreur);
    QCOMPARE(TexteNombre(0) + TexteNombre(8018) + TexteNombre(-1), QStringLiteral(" 0 8018-1"));
}

QTEST_GUILESS_MAIN(TestNombres)
#include "TestNombres.moc"
