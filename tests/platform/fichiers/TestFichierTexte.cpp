#include "DisquePlein.h"
#include "Essais.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

/// What stands in the way under a name, and the numbers that reading and writing raise.
const std::tuple<const char *, int, int> Obstacles[] = {
    {"absent", Erreur::FichierIntrouvable, 0},
    {"parti/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
    {"fichier/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
    {"dossier", Erreur::ErreurFichier, Erreur::ErreurFichier},
    {"tube", Erreur::ErreurFichier, -1}, // would wait for a reader
    {"plein", Erreur::ErreurFichier, Erreur::DisqueSature},
    {"gros", Erreur::MemoireInsuffisante, 0}};

} // namespace

class TestFichierTexte : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dossier;

    QString Chemin(const char *nom) const { return m_dossier->filePath(QString::fromUtf8(nom)); }

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

    void init()
    {
        m_dossier = std::make_unique<QTemporaryDir>();
        EcritFichierTexte(Chemin("fichier"), QStringLiteral("12345678"));
        EcritFichierTexte(Chemin("gros"), QStringLiteral("123456789"));
        QVERIFY(QDir(m_dossier->path()).mkdir(QStringLiteral("dossier")));
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), Chemin("plein")));
        QCOMPARE(mkfifo(qPrintable(Chemin("tube")), 0600), 0);
    }

    void Echecs_data() { Rangees(Obstacles); }
    void Echecs()
    {
        const auto &[nom, lecture, ecriture] = Rangee(Obstacles);
        const QString chemin = Chemin(nom);
        QCOMPARE(FichierExiste(chemin), QLatin1String(nom) == QLatin1String("gros"));
        QCOMPARE(NumeroErreur([&] { LitOctets(chemin, 8); }), lecture);
        if (ecriture >= 0)
            QCOMPARE(NumeroErreur([&] { EcritFichierTexte(chemin, QStringLiteral("x")); }), ecriture);
    }

    // Without room for the longer text the file keeps the one that it has. A new file is cut, and told why.
    void SansPlace()
    {
        const auto plein = DisquePlein(16);
        QStringList causes;
        const int ajout = NumeroErreur([&] { AjouteFichierTexte(Chemin("gros"), QString(16, u'y')); });
        for (const auto &[nom, coupe] :
             {std::pair{"fichier", FichierCoupe::Part}, {"neuf", FichierCoupe::Part}, {"cut", FichierCoupe::Reste}}) {
            try {
                EcritFichierTexte(Chemin(nom), QString(17, u'x'), coupe);
            } catch (const Erreur &erreur) {
                causes << erreur.Description();
            }
        }
        QCOMPARE(causes, QStringList(3, qt_error_string(EFBIG)));
        QVERIFY(!FichierExiste(Chemin("neuf")));
        QVERIFY(FichierExiste(Chemin("cut")));
        QCOMPARE(LitOctets(Chemin("fichier"), 8), QByteArray("12345678"));
        QCOMPARE(ajout, Erreur::ErreurFichier); // half of the line that was added is cut off again
        QCOMPARE(LitOctets(Chemin("gros")), QByteArray("123456789"));
    }
};

QTEST_GUILESS_MAIN(TestFichierTexte)
#include "TestFichierTexte.moc"
