// A 10 MB program stands changed in the pane while it is written at rest, and keys come all the while: the longest time
// that one of them waits from its arrival until the program has taken it, and that anything else waits.

#include "Mesure.h"

#include "donnees/Chemins.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/SauvegardeAuto.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

namespace {

constexpr int Lignes = 400000;
constexpr double Milliseconde = 1000.0;

/// The longest wait of what arrives every few milliseconds, in milliseconds, until fini or a deadline. arrive: hands
/// the program one thing and lets it take that and whatever else waits, as the event loop does.
template <typename Arrivee, typename Fin>
double PlusLongueAttente(Arrivee arrive, Fin fini)
{
    constexpr qint64 Delai = 20'000;
    double attente = 0;
    QElapsedTimer duree;
    duree.start();
    while (!fini()) {
        if (duree.elapsed() > Delai)
            return std::numeric_limits<double>::infinity();
        attente = std::max(attente, SecondesDe(arrive) * Milliseconde);
    }
    return attente;
}

void Frappe()
{
    QCoreApplication::postEvent(frmPrinc->Text1, new QKeyEvent(QEvent::KeyPress, Qt::Key_X, {}, QStringLiteral("X")));
    QCoreApplication::processEvents();
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    const QTemporaryDir dossier;
    FixeDossierApplication(dossier.path());
    const QString fichier = dossier.filePath(QStringLiteral("grand.iso"));
    EcritFichierTexte(fichier, ProgrammeCN(Lignes));
    FrmPrinc fenetre;
    fenetre.show();
    BrancheDocument();
    BrancheSauvegardeAuto();
    OuvreDocument(fichier);
    Frappe();
    auto *const repos = fenetre.findChild<QTimer *>(QStringLiteral("ReposSauvegarde"));
    const QDir garde(dossier.filePath(QStringLiteral("Sauvegardes")));

    // Keys that come while the pane is being read: each one has it begin anew.
    int frappes = 0;
    const double touche = PlusLongueAttente(
        [repos] {
            repos->start(0);
            QCoreApplication::processEvents();
            Frappe();
        },
        [&frappes] { return ++frappes > 200; });
    repos->start(0);
    const double autre = PlusLongueAttente([] { QCoreApplication::processEvents(); },
                                           [&garde] { return garde.entryList({QStringLiteral("*.iso")}).size() == 1; });
    const double attente = std::max(touche, autre);
    return Montre({QStringLiteral("10 MB kept at rest: longest wait of a key, ms"), attente, qQNaN(), QString(),
                   attente, 50})
               ? 0
               : 1;
}
