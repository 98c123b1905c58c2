// Opens a 10 MB program of 400,000 lines and compares time and memory with a bare QPlainTextEdit that is given the same
// text. Each memory is measured in a process of its own.

#include "Mesure.h"

#include "platform/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

constexpr int Lignes = 400000;

double DureeProgramme(const QString &fichier)
{
    FrmPrinc fenetre;
    fenetre.show();
    QCoreApplication::processEvents();
    return SecondesDe([&] {
        NomFichier = fichier;
        OpenFile(fichier);
        QCoreApplication::processEvents();
    });
}

qint64 Memoire(const QString &role, const QString &fichier)
{
    FrmPrinc fenetre;
    QPlainTextEdit nu;
    nu.show();
    fenetre.show();
    QCoreApplication::processEvents();
    const qint64 avant = MemoireResidente();
    if (role == QLatin1String("programme"))
        OpenFile(fichier);
    else
        nu.setPlainText(LitFichierTexte(fichier));
    QCoreApplication::processEvents();
    return MemoireResidente() - avant;
}

double MemoireDe(const QString &role, const QString &fichier)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(), {role, fichier});
    enfant.waitForFinished(-1);
    return enfant.readAllStandardOutput().toDouble();
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    if (nombre == 3) {
        std::printf("%lld\n", Memoire(QString::fromLocal8Bit(arguments[1]), QString::fromLocal8Bit(arguments[2])));
        return 0;
    }
    const QTemporaryDir dossier;
    const QString fichier = dossier.filePath(QStringLiteral("grand.iso"));
    EcritFichierTexte(fichier, ProgrammeCN(Lignes));
    const QString texte = LitFichierTexte(fichier);
    const double temps =
        Mediane(5, [&] { return DureeProgramme(fichier); }) / Mediane(5, [&] { return DureeVoletNu(texte); });
    const double memoire = MemoireDe(QStringLiteral("programme"), fichier) / MemoireDe(QStringLiteral("nu"), fichier);
    const bool tenuTemps =
        Montre({QStringLiteral("time to open a program of 400,000 lines / bare text pane"), temps, 1.5});
    const bool tenuMemoire = Montre({QStringLiteral("memory for it / bare text pane"), memoire, 1.5});
    return tenuTemps && tenuMemoire ? 0 : 1;
}
