#include "Essais.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/fichiers/Lanceur.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestLanceur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Lance();
};

// Which of the system's programs a name starts, and with which arguments; nothing where none can be started. "#" stands
// for the folder of the programs, "@" for the file.
void TestLanceur::Lance()
{
    const std::pair<const char *, const char *> cas[] = {{"#/write to", "write to|@|"}, // an editor by its path
                                                         {"gedit", "gedit|@|"},
                                                         {"#/write to -n \"a b\"", "write to|-n|a b|@|"},
                                                         {"gedit --wait", "gedit|--wait|@|"},
                                                         {"#", nullptr},
                                                         {"", nullptr},
                                                         {"write", "soffice|--writer|@|"}, // not the terminal's own
                                                         {"write.exe", "soffice|--writer|@|"},
                                                         {"C:\\WINDOWS\\WRITE.EXE", "soffice|--writer|@|"},
                                                         {"/mnt/c/wordpad.exe", "soffice|--writer|@|"},
                                                         {"C:\\WINDOWS\\NOTEPAD.EXE", "gedit|@|"},
                                                         {"C:\\EDIT.EXE", nullptr}};
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
    for (const auto &[programme, lance] : cas) {
        const QString nom = QString::fromLatin1(programme).replace(u'#', dossier.path());
        const int numero = NumeroErreur([&] { LanceProgramme(nom, fichier); });
        QCOMPARE(numero, lance == nullptr ? Erreur::FichierIntrouvable : 0);
        if (lance == nullptr)
            continue;
        QTRY_VERIFY2(QFile::exists(sortie), programme);
        QCOMPARE(QString::fromUtf8(LitOctets(sortie)), QString::fromLatin1(lance).replace(u'@', fichier));
        QVERIFY(QFile::remove(sortie));
    }
}

QTEST_GUILESS_MAIN(TestLanceur)
#include "TestLanceur.moc"
