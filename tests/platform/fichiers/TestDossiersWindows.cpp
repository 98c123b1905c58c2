#include "Essais.h"
#include "platform/base/Cause.h"
#include "platform/fichiers/Dossiers.h"
#include "platform/fichiers/FichierTenu.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

/// The cause with which an operation on the disk fails, Inconnue when it succeeds.
template <typename Operation>
Cause CauseErreur(Operation operation)
{
    try {
        operation();
    } catch (const Erreur &erreur) {
        return CauseDe(erreur.Cause());
    }
    return Cause::Inconnue;
}

class TestDossiersWindows : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;

    QString Chemin(const QString &nom) const { return m_dossier.filePath(nom); }
    void Pose(const QString &nom) const
    {
        AssureDossier(QFileInfo(Chemin(nom)).path());
        EcritFichierTexte(Chemin(nom), nom);
    }

    /// Makes a link with the command of Windows or, under Wine, with that of the Linux system around it.
    bool Lie(const QString &lien, const QString &cible, const QStringList &genre) const
    {
        const QString ln = QStringLiteral("Z:/bin/ln");
        const bool wine = QFile::exists(ln);
        const QStringList arguments = wine ? QStringList{QStringLiteral("-s"), cible, lien}
                                           : QStringList{QStringLiteral("/c"), QStringLiteral("mklink")}
                                                 << genre << QDir::toNativeSeparators(lien)
                                                 << QDir::toNativeSeparators(cible);
        QProcess::startDetached(wine ? ln : QStringLiteral("cmd.exe"), arguments, m_dossier.path());
        return QTest::qWaitFor([this, &lien] { return QFileInfo::exists(Chemin(lien)); });
    }

private Q_SLOTS:
    // Whatever becomes of the link, what it leads to stays. Wine itself cannot delete its links: there the deletion
    // stops.
    void EffaceSansSuivreLesLiens_data()
    {
        QTest::addColumn<QString>("cible");
        QTest::addColumn<QStringList>("genre");
        QTest::newRow("junction") << QStringLiteral("loin") << QStringList(QStringLiteral("/J"));
        QTest::newRow("folder") << QStringLiteral("loin") << QStringList(QStringLiteral("/D"));
        QTest::newRow("empty folder") << QStringLiteral("vide") << QStringList(QStringLiteral("/J"));
        QTest::newRow("file") << QStringLiteral("seul.iso") << QStringList();
    }
    void EffaceSansSuivreLesLiens()
    {
        QFETCH(QString, cible);
        QFETCH(QStringList, genre);
        Pose(QStringLiteral("loin/sous/p.iso"));
        Pose(QStringLiteral("seul.iso"));
        Pose(QStringLiteral("d/a/1.iso"));
        AssureDossier(Chemin(QStringLiteral("vide")));
        QVERIFY(Lie(QStringLiteral("d/lien"), QStringLiteral("../") + cible, genre));
        const QString lien = Chemin(QStringLiteral("d/lien"));
        QVERIFY(EstLien(lien) || genre.isEmpty()); // Wine does not tell a link to a file
        QCOMPARE(CompteContenu(Chemin(QStringLiteral("d"))).fichiers, 2);
        for (const QString &chemin : {lien, Chemin(QStringLiteral("d"))}) {
            const int numero = NumeroErreur([&] { EffaceDossier(chemin, [] { return true; }); });
            QVERIFY(numero == 0 || numero == Erreur::AccesRefuse);
            QVERIFY(numero != 0 || !QFileInfo::exists(chemin));
        }
        QVERIFY(QFileInfo(Chemin(QStringLiteral("vide"))).isDir());
        for (const QString &reste : {QStringLiteral("loin/sous/p.iso"), QStringLiteral("seul.iso")})
            QCOMPARE(LitOctets(Chemin(reste)), reste.toLatin1());
        QDir(m_dossier.path()).rename(QStringLiteral("d"), QString::fromLatin1(QTest::currentDataTag()));
    }

    void EffaceProtege()
    {
        Pose(QStringLiteral("p/sous/1.iso"));
        QVERIFY(QFile(Chemin(QStringLiteral("p/sous/1.iso"))).setPermissions(QFile::ReadUser));
        EffaceDossier(Chemin(QStringLiteral("p")), [] { return true; });
        QVERIFY(!QFileInfo::exists(Chemin(QStringLiteral("p"))));
    }

    // Names that Windows keeps for devices are no files, and those that it would change are refused.
    void NomsReserves()
    {
        for (const char *nom : {"COM2", "com2.ISO", "CON", "nul.txt", "LPT1 .iso", "a.", "a ", "a<b", "p?.iso"}) {
            const QString chemin = Chemin(QString::fromLatin1(nom));
            QVERIFY2(CauseErreur([&] { EcritFichierTexte(chemin, QStringLiteral("x")); }) == Cause::NonAccepte, nom);
            QVERIFY2(CauseErreur([&] { LitOctets(chemin); }) == Cause::NonAccepte, nom);
            QVERIFY2(CauseErreur([&] { CreeDossier(chemin); }) == Cause::NonAccepte, nom);
        }
        for (const char *nom : {"COM.ISO", "COM10.ISO", "CONTOUR", ".iso", "a b.c", "O0001"})
            Pose(QString::fromLatin1(nom));
    }

    void Causes()
    {
        Pose(QStringLiteral("causes/pris/p.iso"));
        Pose(QStringLiteral("causes/fichier"));
        const auto chemin = [this](const char *nom) { return Chemin(QStringLiteral("causes/") + QLatin1String(nom)); };
        QVERIFY(CauseErreur([&] { CreeDossier(chemin("PRIS")); }) == Cause::ExisteDeja);
        QVERIFY(CauseErreur([&] { RenommeDossier(chemin("pris"), chemin("fichier")); }) == Cause::ExisteDeja);
        QVERIFY(CauseErreur([&] { LitOctets(chemin("absent")); }) == Cause::Absent);
        QVERIFY(CauseErreur([&] { EcritFichierTexte(chemin("absent/x"), QString()); }) == Cause::Absent);
        QVERIFY(CauseErreur([&] { EcritFichierTexte(chemin("pris"), QString()); }) == Cause::EstUnDossier);
        RenommeDossier(chemin("pris"), chemin("Pris"));
        QVERIFY(ResteDerriere(chemin("PRIS"), chemin("pris/P.iso")) == QStringLiteral("/P.iso"));
    }

    void Ecriture()
    {
        const QString dossier = Chemin(QString(120, u'x') + u'/' + QString(120, u'y')); // beyond 260 characters
        AssureDossier(dossier);
        const QString fichier = dossier + QStringLiteral("/Pièce.iso");
        std::thread([&fichier] { EcritFichierTexte(fichier, QString(300000, u'y')); }).join();
        EcritFichierTexte(fichier, QStringLiteral("é\r\n"));
        AjouteFichierTexte(fichier, QStringLiteral("M30\u0000%"));
        QCOMPARE(LitOctets(fichier), QByteArray("\xE9\r\nM30\0%", 8));
        auto tenu = std::make_unique<FichierTenu>(fichier);
        QVERIFY(tenu->Tenu() && !FichierTenu(fichier).Tenu());
        QCOMPARE(LitOctets(fichier).size(), 8); // others read and write it all the same
        tenu.reset();
        QVERIFY(FichierTenu(fichier).Tenu() && !FichierTenu(Chemin(QStringLiteral("parti"))).Tenu());
    }
};

QTEST_GUILESS_MAIN(TestDossiersWindows)
#include "TestDossiersWindows.moc"
