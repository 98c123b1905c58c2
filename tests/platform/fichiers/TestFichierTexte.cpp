#include "Essais.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

class TestFichierTexte : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;

    QString Chemin(const char *nom) const { return m_dossier.filePath(QString::fromUtf8(nom)); }

private Q_SLOTS:
    // Each byte has one character and comes back; other characters become "?". A shorter text leaves nothing of the
    // longer one.
    void Octets()
    {
        const QString chemin = Chemin("Pièce n° 1.iso");
        EcritFichierTexte(chemin, TexteDe1252(TousLesOctets()));
        QCOMPARE(LitOctets(chemin), TousLesOctets());
        const QString texte = LitFichierTexte(chemin);
        QVERIFY(std::all_of(texte.begin(), texte.end(), EstEn1252));
        QCOMPARE(texte.mid(0x80, 2), QStringLiteral("€\u0081")); // the code page has no character at 0x81
        EcritFichierTexte(chemin, QStringLiteral("a\u03B1\u0080\uFFFDé"));
        QCOMPARE(LitOctets(chemin), QByteArray("a???\xE9"));
    }

    // What stands in the way under the name, and the number that reading and writing raise.
    void Echecs()
    {
        EcritFichierTexte(Chemin("fichier"), QStringLiteral("12345678"));
        EcritFichierTexte(Chemin("gros"), QStringLiteral("123456789"));
        QVERIFY(QDir(m_dossier.path()).mkdir(QStringLiteral("dossier")));
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), Chemin("plein")));
        QCOMPARE(mkfifo(qPrintable(Chemin("tube")), 0600), 0);
        const std::tuple<const char *, int, int> cas[] = {
            {"absent", Erreur::FichierIntrouvable, 0},
            {"parti/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
            {"fichier/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
            {"dossier", Erreur::ErreurFichier, Erreur::ErreurFichier},
            {"tube", Erreur::ErreurFichier, -1}, // would wait for a reader
            {"plein", Erreur::ErreurFichier, Erreur::DisqueSature},
            {"gros", Erreur::MemoireInsuffisante, 0}};
        for (const auto &[nom, lecture, ecriture] : cas) {
            const QString chemin = Chemin(nom);
            QCOMPARE(FichierExiste(chemin), QLatin1String(nom) == QLatin1String("gros"));
            QCOMPARE(NumeroErreur([&] { LitOctets(chemin, 8); }), lecture);
            if (ecriture >= 0)
                QCOMPARE(NumeroErreur([&] { EcritFichierTexte(chemin, QStringLiteral("x")); }), ecriture);
        }
        // Without room for the longer text the file keeps the one that it has. A new file is cut, and told why.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit libre{};
        getrlimit(RLIMIT_FSIZE, &libre);
        const rlimit serre{16, libre.rlim_max};
        setrlimit(RLIMIT_FSIZE, &serre);
        QStringList causes;
        const int plein = NumeroErreur([&] { AjouteFichierTexte(Chemin("gros"), QString(16, u'y')); });
        for (const auto &[nom, coupe] :
             {std::pair{"fichier", FichierCoupe::Part}, {"neuf", FichierCoupe::Part}, {"cut", FichierCoupe::Reste}}) {
            try {
                EcritFichierTexte(Chemin(nom), QString(17, u'x'), coupe);
            } catch (const Erreur &erreur) {
                causes << erreur.Description();
            }
        }
        QCOMPARE(causes, QStringList(3, qt_error_string(EFBIG)));
        QVERIFY(!FichierExiste(Chemin("neuf")) && FichierExiste(Chemin("cut")));
        setrlimit(RLIMIT_FSIZE, &libre);
        QCOMPARE(LitOctets(Chemin("fichier"), 8), QByteArray("12345678"));
        QCOMPARE(plein, Erreur::ErreurFichier); // half of the line that was added is cut off again
        QCOMPARE(LitOctets(Chemin("gros")), QByteArray("x"));
    }
};

QTEST_GUILESS_MAIN(TestFichierTexte)
#include "TestFichierTexte.moc"
