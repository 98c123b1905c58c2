#include "machine/Options.h"

#include <QTest>

using std::chrono::milliseconds;

namespace {
const Instant Zero{};

/// The whole sending, stepped from due time to due time; what went at each time, in microseconds.
QList<std::pair<qint64, QByteArray>> Deroule(Emission &emission)
{
    QList<std::pair<qint64, QByteArray>> envois;
    while (const std::optional<Instant> t = emission.Echeance()) {
        const QByteArray echu = emission.Echu(*t);
        emission.Parti(echu.size());
        envois.append({(*t - Zero).count() / 1000, echu});
    }
    return envois;
}
} // namespace

/// What of the machine knows no clock and no line, driven through made-up time; and its command line.
class TestMachinePieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CadenceExacte_data();
    void CadenceExacte();
    void CadenceOisive();
    void TamponAuxMarques();
    void TamponArretsEcrits();
    void TamponDeborde();
    void DecoupeChaines_data();
    void DecoupeChaines();
    void EmissionLigneParLigne();
    void EmissionRetenue();
    void LitReglages_data();
    void LitReglages();
    void OptionsEnsemble();
};

void TestMachinePieces::CadenceExacte_data()
{
    QTest::addColumn<QString>("reglage");
    QTest::addColumn<qint64>("nanosecondes"); // of 20000 characters, rounded up
    QTest::newRow("9600,n,8,1") << "9600,n,8,1" << Q_INT64_C(20833333334);
    QTest::newRow("9600,E,7,1") << "9600,E,7,1" << Q_INT64_C(20833333334);
    QTest::newRow("110,e,8,2") << "110,e,8,2" << Q_INT64_C(2181818181819);
    QTest::newRow("4800,n,5,1.5") << "4800,n,5,1.5" << Q_INT64_C(31250000000);
    QTest::newRow("115200,o,8,1") << "115200,o,8,1" << Q_INT64_C(1909722223);
}

// No error adds up, however the time is cut: each character is due at its own end and not a nanosecond before.
void TestMachinePieces::CadenceExacte()
{
    QFETCH(QString, reglage);
    QFETCH(qint64, nanosecondes);
    const ReglageLigne ligne = *LitReglageLigne(reglage);
    Cadence cadence(ligne);
    QCOMPARE(cadence.Temps(20000).count(), nanosecondes);
    cadence.Debute(Zero + milliseconds(7));
    for (qint64 passes = 0; passes < 20000;) {
        const qint64 lot = std::min<qint64>(1 + passes % 13, 20000 - passes);
        const Instant fin = cadence.Fin(lot);
        QCOMPARE(cadence.Echus(fin - Duree(1)), lot - 1);
        QCOMPARE(cadence.Echus(fin), lot);
        cadence.Passe(lot);
        passes += lot;
    }
    QCOMPARE((cadence.Fin(0) - Zero - milliseconds(7)).count(), nanosecondes);
}

void TestMachinePieces::CadenceOisive()
{
    Cadence cadence({10000, 20}); // a character takes 1 ms
    cadence.Debute(Zero);
    cadence.Passe(5);
    cadence.Debute(Zero + milliseconds(2)); // the line is still busy with the fifth
    QCOMPARE(cadence.Fin(1), Zero + milliseconds(6));
    cadence.Debute(Zero + milliseconds(20)); // silence is not made up for
    QCOMPARE(cadence.Echus(Zero + milliseconds(23)), 3);
}

void TestMachinePieces::TamponAuxMarques()
{
    TamponRecep tampon({10, 6, 2, 100, {}}); // takes one out every 10 ms
    Instant t = Zero;
    for (int n = 1; n <= 6; ++n) {
        QCOMPARE(tampon.JusquaMarque(), 7 - n);
        QVERIFY(tampon.Recoit(t += milliseconds(1)));
        QCOMPARE(tampon.Parole(), n < 6 ? std::nullopt : std::optional(Xoff));
    }
    QVERIFY(tampon.Recoit(t += milliseconds(1))); // still on its way at 7 ms
    QCOMPARE(tampon.Parole(), std::nullopt);
    QCOMPARE(tampon.Echeance(), Zero + milliseconds(51)); // 5 to take out since the first, at 1 ms
    tampon.Avance(*tampon.Echeance() - Duree(1));
    QCOMPARE(tampon.Parole(), std::nullopt);
    tampon.Avance(*tampon.Echeance());
    QCOMPARE(tampon.Niveau(), 2);
    QCOMPARE(tampon.Parole(), Xon);
    QVERIFY(!tampon.Retenu() && !tampon.Echeance());
    QCOMPARE(tampon.SuiteXoff(), 1);
}

void TestMachinePieces::TamponArretsEcrits()
{
    TamponRecep tampon({10, 8, 2, 0, {{3, 50}, {5, -1}}});
    for (int n = 1; n <= 3; ++n) {
        QCOMPARE(tampon.Parole(), std::nullopt);
        tampon.Recoit(Zero);
    }
    QCOMPARE(tampon.Parole(), Xoff);
    tampon.Recoit(Zero + milliseconds(1));
    QCOMPARE(tampon.Echeance(), Zero + milliseconds(50));
    tampon.Avance(Zero + milliseconds(50));
    QCOMPARE(tampon.Parole(), Xon);
    QCOMPARE(tampon.JusquaMarque(), 1);
    tampon.Recoit(Zero + milliseconds(60));
    QCOMPARE(tampon.Parole(), Xoff);
    QVERIFY(!tampon.Echeance()); // until told
    tampon.Reprend(Zero + milliseconds(90));
    QCOMPARE(tampon.Parole(), Xon);
    QCOMPARE(tampon.XoffDits() * 10 + tampon.XonDits(), 22);
    QCOMPARE(tampon.SuiteXoffMax(), 1);
}

void TestMachinePieces::TamponDeborde()
{
    TamponRecep tampon({4, 3, 1, 0, {}});
    tampon.Retient();
    for (int n = 1; n <= 7; ++n)
        QCOMPARE(tampon.Recoit(Zero), n <= 4);
    QCOMPARE(tampon.Perdus(), 3);
    tampon.Reprend(Zero + milliseconds(1));
    QVERIFY(tampon.Recoit(Zero + milliseconds(1)));
    QCOMPARE(tampon.Recus(), 8);
}

void TestMachinePieces::DecoupeChaines_data()
{
    QTest::addColumn<QByteArray>("debut");
    QTest::addColumn<QByteArray>("fin");
    QTest::addColumn<QByteArray>("flot");
    QTest::addColumn<QByteArrayList>("textes"); // the last is what remains unfinished
    QTest::newRow("empty program") << QByteArray() << QByteArray("\4") << QByteArray("\4N1")
                                   << QByteArrayList{"", "N1"};
    QTest::newRow("two programs") << QByteArray() << QByteArray("\4") << QByteArray("N1\r\n\4N2\4")
                                  << QByteArrayList{"N1\r\n", "N2", ""};
    QTest::newRow("end that begins twice")
        << QByteArray() << QByteArray("M30") << QByteArray("MM3M30M3") << QByteArrayList{"MM3", "M3"};
    QTest::newRow("noise before the beginning")
        << QByteArray("%\r") << QByteArray("\4") << QByteArray("\4%%\rN1\4N2") << QByteArrayList{"N1", ""};
    QTest::newRow("one chain for both") << QByteArray("%") << QByteArray("%") << QByteArray("%N1%%N2%%")
                                        << QByteArrayList{"N1", "N2", ""};
    QTest::newRow("end does not eat the beginning")
        << QByteArray("%%") << QByteArray("%%") << QByteArray("%%%N%%") << QByteArrayList{"%N", ""};
    QTest::newRow("no end chain") << QByteArray() << QByteArray() << QByteArray("N1\4") << QByteArrayList{"N1\4"};
}

void TestMachinePieces::DecoupeChaines()
{
    QFETCH(QByteArray, debut);
    QFETCH(QByteArray, fin);
    QFETCH(QByteArray, flot);
    QFETCH(QByteArrayList, textes);
    Decoupe decoupe(debut, fin);
    QByteArrayList trouves;
    QByteArray bruts;
    for (const char caractere : flot) {
        if (!decoupe.Ajoute(caractere))
            continue;
        trouves += decoupe.Texte();
        bruts += decoupe.Brut();
        decoupe.Vide();
    }
    QCOMPARE(trouves << decoupe.Texte(), textes);
    QCOMPARE(bruts + decoupe.Brut(), flot);
}

void TestMachinePieces::EmissionLigneParLigne()
{
    const Envoi envoi{"ab\ncd", 100};
    Emission emission(envoi, "%", "\4", {10000, 20}, Zero); // a character takes 1 ms
    const QList<std::pair<qint64, QByteArray>> attendus{{1000, "%"},   {2000, "a"},   {3000, "b"},   {4000, "\n"},
                                                        {105000, "c"}, {106000, "d"}, {107000, "\4"}};
    QCOMPARE(Deroule(emission), attendus);
    QVERIFY(emission.Finie());

    Emission coupee({"abc", 0, "\n", 2}, "%", "\4", {0, 20}, Zero);
    QCOMPARE(coupee.Echu(Zero), "%a");
    Emission sansFin({"abc", 0, "\n", -1, true}, "%", "\4", {0, 20}, Zero);
    QCOMPARE(sansFin.Echu(Zero), "%abc");
}

void TestMachinePieces::EmissionRetenue()
{
    Emission emission({"abcdef"}, {}, {}, {10000, 20}, Zero);
    emission.Parti(emission.Echu(Zero + milliseconds(2)).size());
    emission.Retient(true, Zero + milliseconds(2));
    QVERIFY(emission.Echu(Zero + milliseconds(500)).isEmpty() && !emission.Echeance());
    emission.Retient(false, Zero + milliseconds(500));
    emission.Retient(false, Zero + milliseconds(501)); // an XON too many moves nothing
    QCOMPARE(emission.Echu(Zero + milliseconds(502)), "cd");
}

void TestMachinePieces::LitReglages_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("demiBits"); // -1: refused
    const std::initializer_list<std::pair<const char *, int>> cas{
        {"9600,n,8,1", 20}, {"9600,E,7,1", 20}, {"19200,o,8,2", 24}, {"300,s,5,1.5", 17}, {"9600,n,8", -1},
        {"9600,x,8,1", -1}, {"9600,n,9,1", -1}, {"0,n,8,1", -1},     {"9600,n,8,3", -1},  {"9600,,8,1", -1}};
    for (const auto &[texte, demiBits] : cas)
        QTest::newRow(texte) << QString::fromLatin1(texte) << demiBits;
}

void TestMachinePieces::LitReglages()
{
    QFETCH(QString, texte);
    QFETCH(int, demiBits);
    const std::optional<ReglageLigne> ligne = LitReglageLigne(texte);
    QCOMPARE(ligne ? ligne->DemiBits : -1, demiBits);
}

void TestMachinePieces::OptionsEnsemble()
{
    const auto lit = [](const char *ligne) {
        return LitOptions((QStringLiteral("machine ") + QLatin1String(ligne)).split(u' '));
    };
    const Options options =
        lit("--bits 10.5 --fin 13,4 --debut 37 --tampon 100 --retient 50,20 --retient 9 --sans-flux");
    QCOMPARE(options.Machine.Ligne.DemiBits, 21);
    QCOMPARE(options.Machine.Fin, "\r\4");
    QCOMPARE(options.Machine.Debut, "%");
    QCOMPARE(options.Machine.Tampon.MarqueHaute, 75);
    QCOMPARE(options.Machine.Tampon.MarqueBasse, 25);
    QCOMPARE(options.Machine.Tampon.Arrets[0].Apres, 9); // in the order in which they come
    QCOMPARE(options.Machine.Tampon.Arrets[1].DureeMs, 20);
    QVERIFY(!options.Machine.XonXoff);
    for (const char *faux : {"--fin 256", "--fin 4,", "--vitesse -1", "--bits 0", "--reglage 9600", "--retient 0",
                             "--retient 5,x", "--tampon 10 --haut 11", "--bas 800", "--coupe x"})
        QVERIFY_THROWS_EXCEPTION(OptionFausse, lit(faux));
}

QTEST_GUILESS_MAIN(TestMachinePieces)
#include "TestMachinePieces.moc"
