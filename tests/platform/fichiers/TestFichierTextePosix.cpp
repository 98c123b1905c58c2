#include "DisquePlein.h"
#include "Essais.h"
#include "platform/fichiers/FichierTexte.h"

#include <QTemporaryDir>

#include <sys/stat.h>

class TestFichierTextePosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A pipe, which would wait for a reader, and a disk that is full from the first character on.
    void Refus()
    {
        const QTemporaryDir dossier;
        const QString tube = dossier.filePath(u"tube"_s);
        QCOMPARE(mkfifo(qPrintable(tube), 0600), 0);
        QCOMPARE(NumeroErreur([&] { LitOctets(tube, 8); }), Erreur::ErreurFichier);
        const QString plein = dossier.filePath(u"plein"_s);
        QVERIFY(QFile::link(u"/dev/full"_s, plein));
        QCOMPARE(NumeroErreur([&] { LitOctets(plein, 8); }), Erreur::ErreurFichier);
        QCOMPARE(NumeroErreur([&] { EcritFichierTexte(plein, u"x"_s); }), Erreur::DisqueSature);
        QVERIFY(!FichierExiste(tube) && !FichierExiste(plein));
    }

    // Without room for the longer text the file keeps the one that it has. A new file is cut, and told why.
    void SansPlace()
    {
        const QTemporaryDir dossier;
        EcritFichierTexte(dossier.filePath(u"fichier"_s), QStringLiteral("12345678"));
        EcritFichierTexte(dossier.filePath(u"gros"_s), QStringLiteral("123456789"));
        const auto plein = DisquePlein(16);
        QStringList causes;
        const int ajout = NumeroErreur([&] { AjouteFichierTexte(dossier.filePath(u"gros"_s), QString(16, u'y')); });
        for (const auto &[nom, coupe] :
             {std::pair{"fichier", FichierCoupe::Part}, {"neuf", FichierCoupe::Part}, {"cut", FichierCoupe::Reste}}) {
            try {
                EcritFichierTexte(dossier.filePath(QLatin1String(nom)), QString(17, u'x'), coupe);
            } catch (const Erreur &erreur) {
                causes << erreur.Description();
            }
        }
        QCOMPARE(causes, QStringList(3, qt_error_string(EFBIG)));
        QVERIFY(!FichierExiste(dossier.filePath(u"neuf"_s)));
        QVERIFY(FichierExiste(dossier.filePath(u"cut"_s)));
        QCOMPARE(LitOctets(dossier.filePath(u"fichier"_s), 8), QByteArray("12345678"));
        QCOMPARE(ajout, Erreur::ErreurFichier); // half of the line that was added is cut off again
        QCOMPARE(LitOctets(dossier.filePath(u"gros"_s)), QByteArray("123456789"));
    }
};

QTEST_GUILESS_MAIN(TestFichierTextePosix)
#include "TestFichierTextePosix.moc"
