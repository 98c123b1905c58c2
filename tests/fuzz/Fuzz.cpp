#include "fuzz/Fuzz.h"

#include "donnees/Chemins.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

const QTemporaryDir &Dossier()
{
    static const QTemporaryDir dossier;
    return dossier;
}

} // namespace

QString Pose(const char *nom, const QByteArray &octets)
{
    QFile fichier(Dossier().filePath(QLatin1String(nom)));
    EXIGE(fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size());
    return fichier.fileName();
}

QByteArray Relit(const QString &chemin)
{
    QFile fichier(chemin);
    EXIGE(fichier.open(QIODevice::ReadOnly));
    return fichier.readAll();
}

// NOLINTNEXTLINE(readability-non-const-parameter): the fuzzer's own form
extern "C" int LLVMFuzzerInitialize(int *nombre, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*nombre, *arguments);
    FixeDossierApplication(Dossier().path());
    new FrmPrinc; // the routines show what they do in the main window
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *octets, size_t nombre)
{
    Essaie(QByteArray(reinterpret_cast<const char *>(octets), static_cast<qsizetype>(nombre)));
    return 0;
}
