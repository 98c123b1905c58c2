#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/Lanceur.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestLanceur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Lance_data();
    void Lance();
};

// Which of the system's programs a name starts, and with which arguments; "" where none can be started. "#" stands for
// the folder of the programs, "@" for the file.
void TestLanceur::Lance_data()
{
    QTest::addColumn<QString>("programme");
    QTest::addColumn<QString>("lance");
    QTest::newRow("an editor by its path") << "#/write to"
                                           << "write to|@|";
    QTest::newRow("by its name") << "gedit"
                                 << "gedit|@|";
    QTest::newRow("with arguments") << "#/write to -n \"a b\""
                                    << "write to|-n|a b|@|";
    QTest::newRow("by its name, with an argument") << "gedit --wait"
                                                   << "gedit|--wait|@|";
    QTest::newRow("a folder") << "#"
                              << "";
    QTest::newRow("none") << ""
                          << "";
    for (const char *const nom : {"write", "write.exe", "C:\\WINDOWS\\WRITE.EXE", "/mnt/c/wordpad.exe"})
        QTest::newRow(nom) << nom << "soffice|--writer|@|"; // and never the terminal's own "write"
    QTest::newRow("notepad") << "C:\\WINDOWS\\NOTEPAD.EXE"
                             << "gedit|@|";
    QTest::newRow("missing") << "C:\\EDIT.EXE"
                             << "";
}

void TestLanceur::Lance()
{
    QFETCH(QString, programme);
    QFETCH(QString, lance);
    const QTemporaryDir dossier;
    const QString sortie = dossier.filePath(QStringLiteral("sortie"));
    for (const char *const nom : {"write", "write to", "soffice", "gedit"}) {
        const QString chemin = dossier.filePath(QLatin1String(nom));
        EcritFichierTexte(chemin, QStringLiteral("#!/bin/sh\nprintf '%s|' \"${0##*/}\" \"$@\" > '%1.x'\n"
                                                 "/bin/mv '%1.x' '%1'\n")
                                      .arg(sortie));
        QVERIFY(QFile(chemin).setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }
    qputenv("PATH", dossier.path().toLocal8Bit());
    const QString fichier = dossier.filePath(QStringLiteral("pièce $HOME '1.iso"));
    try {
        LanceProgramme(programme.replace(u'#', dossier.path()), fichier);
    } catch (const Erreur &erreur) {
        QCOMPARE(erreur.Numero(), Erreur::FichierIntrouvable);
        QCOMPARE(lance, QString());
        return;
    }
    QTRY_VERIFY(QFile::exists(sortie));
    QCOMPARE(QString::fromUtf8(LitOctets(sortie)), lance.replace(u'@', fichier));
}

QTEST_GUILESS_MAIN(TestLanceur)
#include "TestLanceur.moc"
