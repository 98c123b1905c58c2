// Opens a 10 MB program of 400,000 lines, and compares time and memory with a bare QPlainTextEdit that gets the same
// text. Each memory figure comes from a process of its own.

#include "Mesure.h"

#include "platform/fichiers/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace {

constexpr int Lignes = 400000;

double DureeProgramme(const QString &fichier)
{
    FrmPrinc fenetre;
    fenetre.show();
    QCoreApplication::processEvents();
    return SecondesDe([&] {
        Document.NomFichier = fichier;
        OpenFile(fichier);
        QCoreApplication::processEvents();
    });
}

double Memoire(const QString &role, const QString &fichier)
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
    return static_cast<double>(MemoireResidente() - avant);
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    if (nombre > 1) {
        const QStringList role = QCoreApplication::arguments();
        Rend({Memoire(role.at(1), role.at(2))});
        return 0;
    }
    const QTemporaryDir dossier;
    const QString fichier = dossier.filePath(QStringLiteral("grand.iso"));
    EcritFichierTexte(fichier, ProgrammeCN(Lignes));
    const QString texte = LitFichierTexte(fichier);
    constexpr int fois = 5;
    QList<double> volets;
    QList<double> rapports;
    for (int i = 0; i < fois; ++i) {
        volets << DureeVoletNu(texte);
        rapports << DureeProgramme(fichier) / volets.last();
    }
    const double rapport = Mediane(rapports);
    const QString volet = QStringLiteral("bare text pane");
    const bool temps = Montre({QStringLiteral("to open 400,000 lines, s / pane given the text"),
                               rapport * Mediane(volets), Mediane(volets), volet, rapport, 1.5});
    constexpr double Mo = 1024.0 * 1024;
    const double programme = Enfant({QStringLiteral("programme"), fichier}).Chiffres(1).at(0);
    const double nu = Enfant({QStringLiteral("nu"), fichier}).Chiffres(1).at(0);
    const bool memoire =
        Montre({QStringLiteral("memory for them, MB / pane's"), programme / Mo, nu / Mo, volet, programme / nu, 1.5});
    return temps && memoire ? 0 : 1;
}
