#include "Essais.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/fichiers/Lanceur.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

/// Which of the system's programs a name starts, and with which arguments; nothing where none can be started. "#"
/// stands for the folder of the programs, "@" for the file.
const std::tuple<const char *, const char *, const char *> Noms[] = {
    {"an editor by its path", "#/write to", "write to|@|"},
    {"an editor by its name", "gedit", "gedit|@|"},
    {"a path with arguments", "#/write to -n \"a b\"", "write to|-n|a b|@|"},
    {"a name with an argument", "gedit --wait", "gedit|--wait|@|"},
    {"a folder", "#", nullptr},
    {"no name", "", nullptr},
    {"not the terminal's own write", "write", "soffice|--writer|@|"},
    {"write.exe", "write.exe", "soffice|--writer|@|"},
    {"write.exe by its path", "C:\\WINDOWS\\WRITE.EXE", "soffice|--writer|@|"},
    {"wordpad.exe on a mounted disk", "/mnt/c/wordpad.exe", "soffice|--writer|@|"},
    {"notepad.exe", "C:\\WINDOWS\\NOTEPAD.EXE", "gedit|@|"},
    {"an unknown .exe", "C:\\EDIT.EXE", nullptr}};

} // namespace

class TestLanceur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Lance_data() { Rangees(Noms); }
    void Lance();
};

void TestLanceur::Lance()
{
    const auto &[rangee, programme, lance] = Rangee(Noms);
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
    const QString nom = QString::fromLatin1(programme).replace(u'#', dossier.path());
    const int numero = NumeroErreur([&] { LanceProgramme(nom, fichier); });
    QCOMPARE(numero, lance == nullptr ? Erreur::FichierIntrouvable : 0);
    if (lance == nullptr)
        return;
    QTRY_VERIFY(QFile::exists(sortie));
    QCOMPARE(QString::fromUtf8(LitOctets(sortie)), QString::fromLatin1(lance).replace(u'@', fichier));
}

QTEST_GUILESS_MAIN(TestLanceur)
#include "TestLanceur.moc"
