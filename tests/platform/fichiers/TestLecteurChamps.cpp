#include "Essais.h"
#include "platform/base/Nombres.h"
#include "platform/fichiers/LecteurChamps.h"

#include <limits>

namespace {

/// A settings file, and its fields, read one after another until the file ends.
const std::tuple<const char *, const char *, const char *> Fichiers[] = {
    {"blanks and a path", " 0 \r\n\"C:\\A B\"\r\n", "0 |C:\\A B|[62]"},
    {"two on a line", "\"a,b\",c\r\n", "a,b|c|[62]"},
    {"a bare value is cut at its comma", "C:\\a,b\r\nd", "C:\\a|b|d|[62]"},
    {"signs behind a quote", "\"a\" b, c", "a|c|[62]"},
    {"lone CR and LF", "a\rb\nc", "a|b|c|[62]"},
    {"quotes never closed", "a\r\n\"b\r\nc\r\n", "a|[62]"},
    {"quotes round a line end", "\"a\r\nb\"\r\nc", "a\r\nb|c|[62]"},
};

/// Runs a reading; gives its value, or the number of its failure in brackets.
template <typename Lecture>
QString Essaie(Lecture lecture)
{
    QString lu;
    const int numero = NumeroErreur([&] { lu = QStringLiteral("%1").arg(lecture()); });
    return numero == 0 ? lu : QStringLiteral("[%1]").arg(numero);
}

} // namespace

/// Fields and numbers, as files and operators write them. 6: too large, 62: nothing there.
class TestLecteurChamps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Champs_data() { Rangees(Fichiers); }
    void Champs()
    {
        const auto &[nom, texte, champs] = Rangee(Fichiers);
        LecteurChamps lecteur(QString::fromLatin1(texte));
        QStringList lus;
        do
            lus << Essaie([&lecteur] { return lecteur.Chaine(); });
        while (!lus.last().startsWith(u'[') && lus.size() < 10);
        QCOMPARE(lus.join(u'|'), QLatin1String(champs));
    }

    // What an operator types or a bench sends, well formed or not.
    void Valeurs()
    {
        QList<double> valeurs;
        for (const char *texte : {"", "abc", "1 2 . 5abc", "-.5", "+3", "1.2.3", "1,5", "--1", "1e3x", "1e", "12e-1",
                                  ".", "\t7", "-", "&H1F", "00012", "0x10", "3-2", "1234567890123"})
            valeurs << Val(QString::fromLatin1(texte));
        QCOMPARE(valeurs,
                 (QList<double>{0, 0, 12.5, -0.5, 3, 1.2, 1, 0, 1000, 1, 1.2, 0, 7, 0, 0, 12, 0, 3, 1234567890123.0}));
    }

    // Ties go to the even number; what does not fit 16 bits after rounding is refused.
    void Arrondis()
    {
        QStringList entiers;
        for (const double valeur : {0.5, 1.5, 2.5, -0.5, -1.5, 2.500001, 32767.49, 32767.5, -32768.5, -32768.51, 1e300,
                                    std::numeric_limits<double>::quiet_NaN()})
            entiers << Essaie([valeur] { return EnEntier(valeur); });
        QCOMPARE(entiers.join(u' '), QStringLiteral("0 2 2 0 -2 3 32767 [6] -32768 [6] [6] [6]"));
    }

    // At most 7 digits, no zero ahead of the point, a point in every locale.
    void Textes()
    {
        const QLocale ancienne;
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); // a comma for the decimals
        QStringList textes;
        for (const float valeur : {-0.0F, -0.8F, 12.5F, 0.1F, 100.0F, 1.0F / 3, 123.456F, 0.00001F, 9999999.0F,
                                   16777216.0F, 0.99999999F, -200.05F})
            textes << TexteReel(valeur);
        QLocale::setDefault(ancienne);
        QCOMPARE(textes.join(u' '),
                 QStringLiteral("0 -.8 12.5 .1 100 .3333333 123.456 .00001 9999999 16777220 1 -200.05"));
        QCOMPARE((QStringList{TexteNombre(0), TexteNombre(8018), TexteNombre(-1)}),
                 (QStringList{QStringLiteral(" 0"), QStringLiteral(" 8018"), QStringLiteral("-1")}));
    }
};

QTEST_GUILESS_MAIN(TestLecteurChamps)
#include "TestLecteurChamps.moc"
