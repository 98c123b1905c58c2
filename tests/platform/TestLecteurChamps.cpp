#include "platform/Erreur.h"
#include "platform/LecteurChamps.h"

#include <QTest>

class TestLecteurChamps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Champs_data();
    void Champs();
    void Lignes_data();
    void Lignes();
};

namespace {

QStringList Liste(std::initializer_list<const char *> textes)
{
    QStringList liste;
    for (const char *texte : textes)
        liste << QString::fromLatin1(texte);
    return liste;
}

/// Runs a reading; gives its value, or the number of its failure in brackets.
template <typename Lecture>
QString Essaie(Lecture lecture)
{
    try {
        return QStringLiteral("%1").arg(lecture());
    } catch (const Erreur &erreur) {
        return QStringLiteral("[%1]").arg(erreur.Numero());
    }
}

} // namespace

// Fields of a settings file, read one after another until the file ends.
void TestLecteurChamps::Champs_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("champs");
    const auto ligne = [](const char *nom, const char *texte, std::initializer_list<const char *> champs) {
        QTest::newRow(nom) << QString::fromLatin1(texte) << Liste(champs);
    };
    constexpr char fin[] = "[62]";
    ligne("empty file", "", {fin});
    ligne("blanks only", "   ", {fin});
    ligne("ordinary", " 0 \r\n\"C:\\A B\"\r\n", {"0 ", "C:\\A B", fin});
    ligne("comma inside quotes", "\"a,b\",c\r\n", {"a,b", "c", fin});
    ligne("bare value cut at its comma", "C:\\a,b\r\nd", {"C:\\a", "b", "d", fin});
    ligne("empty line, empty quotes", "\r\n\"\"\r\nx", {"", "", "x", fin});
    ligne("words behind the quotes", "\"a\" b, c", {"a", "c", fin});
    ligne("lone CR, lone LF", "a\rb\nc", {"a", "b", "c", fin});
    ligne("quotes never closed", "a\r\n\"b\r\nc\r\n", {"a", fin});
    ligne("quotes over two lines", "\"a\r\nb\"\r\nc", {"a\r\nb", "c", fin});
}

void TestLecteurChamps::Champs()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, champs);
    LecteurChamps lecteur(texte);
    QStringList lus;
    do
        lus << Essaie([&lecteur] { return lecteur.Chaine(); });
    while (lus.size() < champs.size());
    QCOMPARE(lus, champs);
}

// One line read as each kind of field: a number of any text, a number, a yes or no, a text. 6: too large, 13: not of
// that form, 62: nothing there.
void TestLecteurChamps::Lignes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("valeurs");
    const auto ligne = [](const char *texte, std::initializer_list<const char *> valeurs) {
        QTest::newRow(qPrintable(QString::fromLatin1(texte).trimmed())) << QString::fromLatin1(texte) << Liste(valeurs);
    };
    ligne("", {"[62]", "[62]", "[62]", "[62]"});
    ligne("\r\n", {"0", "[13]", "[13]", "[13]"});
    ligne("12\r\n", {"12", "12", "12", "[13]"});
    ligne(" -1 ", {"-1", "-1", "-1", "[13]"});
    ligne("\t7\t\n", {"7", "7", "7", "[13]"});
    ligne("#TRUE#", {"0", "[13]", "1", "[13]"});
    ligne(" #FALSE# ", {"0", "[13]", "0", "[13]"});
    ligne("12abc", {"12", "[13]", "[13]", "[13]"});
    ligne("1.6", {"2", "[13]", "[13]", "[13]"});
    ligne("32768", {"[6]", "[6]", "[6]", "[13]"});
    ligne("99999999999999999999", {"[6]", "[13]", "[13]", "[13]"});
    ligne("\"5\"", {"5", "[13]", "[13]", "5"});
    ligne("  \"a b\"  ", {"0", "[13]", "[13]", "a b"});
    ligne("\"a\" b", {"0", "[13]", "[13]", "[13]"});
    ligne("\"a", {"[62]", "[13]", "[13]", "[62]"});
}

void TestLecteurChamps::Lignes()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, valeurs);
    const QStringList lues = {Essaie([&texte] { return LecteurChamps(texte).Entier(); }),
                              Essaie([&texte] { return LecteurChamps(texte).LigneEntier(); }),
                              Essaie([&texte] { return LecteurChamps(texte).LigneOuiNon(); }),
                              Essaie([&texte] { return LecteurChamps(texte).LigneChaine(); })};
    QCOMPARE(lues, valeurs);
}

QTEST_GUILESS_MAIN(TestLecteurChamps)
#include "TestLecteurChamps.moc"
