#include "Essais.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

/// What stands in the way under a name, and the numbers that reading and writing raise.
const std::tuple<const char *, int, int> Obstacles[] = {
    {"absent", Erreur::FichierIntrouvable, 0},
    {"parti/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
    {"fichier/x", Erreur::FichierIntrouvable, Erreur::FichierIntrouvable},
    {"dossier", Erreur::ErreurFichier, Erreur::ErreurFichier},
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
    }

    void Echecs_data() { Rangees(Obstacles); }
    void Echecs()
    {
        const auto &[nom, lecture, ecriture] = Rangee(Obstacles);
        const QString chemin = Chemin(nom);
        QCOMPARE(FichierExiste(chemin), QLatin1String(nom) == QLatin1String("gros"));
        QCOMPARE(NumeroErreur([&] { LitOctets(chemin, 8); }), lecture);
        QCOMPARE(NumeroErreur([&] { EcritFichierTexte(chemin, QStringLiteral("x")); }), ecriture);
    }
};

QTEST_GUILESS_MAIN(TestFichierTexte)
#include "TestFichierTexte.moc"
