#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/PageCode1252.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

class TestFichierTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TousLesOctets();
    void CaracteresAbsents();
    void Echecs_data();
    void Echecs();

private:
    std::unique_ptr<QTemporaryDir> m_dossier;
};

void TestFichierTexte::init()
{
    m_dossier = std::make_unique<QTemporaryDir>();
}

// Each byte has one character and comes back, on its own and through a file.
void TestFichierTexte::TousLesOctets()
{
    QByteArray octets;
    for (int code = 0; code < 256; ++code)
        octets += static_cast<char>(code);
    const QString texte = TexteDe1252(octets);
    QCOMPARE(texte.size(), 256);
    QCOMPARE(QSet<QChar>(texte.begin(), texte.end()).size(), 256);
    QCOMPARE(texte.mid(0x80, 1), QStringLiteral("€"));
    QCOMPARE(texte.mid(0x9F, 1), QStringLiteral("Ÿ"));
    QCOMPARE(texte[0x81], QChar(0x81)); // the code page has no character there
    QVERIFY(std::all_of(texte.begin(), texte.end(), EstEn1252));

    const QString chemin = m_dossier->filePath(QStringLiteral("Pièce n° 1.iso"));
    EcritFichierTexte(chemin, texte);
    QCOMPARE(LitOctets(chemin), octets);
    QCOMPARE(LitFichierTexte(chemin), texte);
    EcritFichierTexte(chemin, QStringLiteral("x")); // a shorter text leaves nothing of the longer one
    QCOMPARE(LitOctets(chemin), QByteArray("x"));
}

void TestFichierTexte::CaracteresAbsents()
{
    QCOMPARE(OctetsEn1252(QStringLiteral("a\u03B1\u0080\uFFFDé")), QByteArray("a???\xE9"));
    QVERIFY(!EstEn1252(QChar(0x80)) && !EstEn1252(QChar(0x3B1)));
}

// What stands in the way under the name, and the number that reading and writing raise (0: no failure).
void TestFichierTexte::Echecs_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<int>("lecture");
    QTest::addColumn<int>("ecriture");
    QTest::newRow("missing") << "absent" << Erreur::FichierIntrouvable << 0;
    QTest::newRow("folder gone") << "parti/x" << Erreur::FichierIntrouvable << Erreur::FichierIntrouvable;
    QTest::newRow("under a file") << "fichier/x" << Erreur::FichierIntrouvable << Erreur::FichierIntrouvable;
    QTest::newRow("a folder") << "dossier" << Erreur::ErreurFichier << Erreur::ErreurFichier;
    QTest::newRow("a pipe") << "tube" << Erreur::ErreurFichier << -1; // writing would wait for a reader
    QTest::newRow("full disk") << "plein" << Erreur::ErreurFichier << Erreur::DisqueSature;
    QTest::newRow("too large") << "gros" << Erreur::MemoireInsuffisante << 0;
}

void TestFichierTexte::Echecs()
{
    QFETCH(QString, nom);
    QFETCH(int, lecture);
    QFETCH(int, ecriture);
    const auto chemin = [this](const char *fichier) { return m_dossier->filePath(QLatin1String(fichier)); };
    EcritFichierTexte(chemin("fichier"), QStringLiteral("12345678"));
    EcritFichierTexte(chemin("gros"), QStringLiteral("123456789"));
    QVERIFY(QDir(m_dossier->path()).mkdir(QStringLiteral("dossier")));
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), chemin("plein")));
    QCOMPARE(mkfifo(qPrintable(chemin("tube")), 0600), 0);

    const QString complet = m_dossier->filePath(nom);
    const auto numero = [](auto operation) {
        try {
            operation();
            return 0;
        } catch (const Erreur &erreur) {
            return erreur.Description().isEmpty() ? -1 : erreur.Numero();
        }
    };
    QCOMPARE(FichierExiste(complet), nom == QLatin1String("gros"));
    QCOMPARE(numero([&] { LitOctets(complet, 8); }), lecture);
    if (ecriture >= 0)
        QCOMPARE(numero([&] { EcritFichierTexte(complet, QStringLiteral("x")); }), ecriture);
    QCOMPARE(LitOctets(chemin("fichier"), 8), QByteArray("12345678"));
}

QTEST_GUILESS_MAIN(TestFichierTexte)
#include "TestFichierTexte.moc"
