#include "shell/CheminsTenus.h"

#include "donnees/Chemins.h"
#include "platform/fichiers/Dossiers.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QDir>
#include <QFileInfo>

namespace {

struct Variables
{
    QList<QString *> receptions;
    QList<QString *> autres;
} variables;

/// A registered path, and its new value.
struct Suite
{
    QString *chemin;
    QString nouveau;
};

/// The new values of the registered paths, when dossier gets the name nouveau. Has to be called before the renaming:
/// afterwards a link that leads into dossier leads nowhere.
QList<Suite> Suites(const QString &dossier, const QString &nouveau)
{
    QList<Suite> suites;
    const QList<QString *> tous = variables.receptions + variables.autres;
    for (QString *const chemin : tous) {
        const auto reste = ResteDerriere(dossier, DepuisDossierApplication(*chemin));
        if (!reste)
            continue;
        const QString suivi = QDir::toNativeSeparators(nouveau + *reste);
        suites << Suite{chemin, chemin->endsWith(QDir::separator()) ? AjouteAntislash(suivi) : suivi};
    }
    return suites;
}

} // namespace

void TientChemins(const QList<QString *> &receptions, const QList<QString *> &autres)
{
    variables = {receptions, autres};
}

bool RenommeEtSuit(const QString &ancien, const QString &nouveau)
{
    // nouveau is made absolute before the renaming, since the current folder may be the renamed one.
    const QList<Suite> suites = Suites(ancien, QDir::cleanPath(QFileInfo(nouveau).absoluteFilePath()));
    RenommeDossier(ancien, nouveau);
    const bool enTitre = !Document.NomFichier.isEmpty() && frmPrinc->windowTitle().endsWith(Document.NomFichier);
    for (const Suite &suite : suites)
        *suite.chemin = suite.nouveau;
    if (enTitre)
        TitreFenetre(Document.NomFichier);
    return !suites.isEmpty();
}

void QuitteReceptions(const QString &dossier)
{
    for (QString *const reception : std::as_const(variables.receptions)) {
        if (QDir::cleanPath(DepuisDossierApplication(*reception)) == QDir::cleanPath(dossier))
            *reception = DossierApplication();
    }
}
