#pragma once

#include <QString>

// Warnings about names that the settings files cannot keep. Those files hold the letters of code page 1252 only, and
// most names stand in double quotes without any escaping. A name with another letter or with a quote works until the
// program ends; the next start then looks for a different name.

/// How a name is written in a settings file: between quotes, or bare, where it ends at a comma.
enum class LigneNom {
    Citee,
    Nue,
};

/// Warns the operator when the name that he has chosen will be lost, and says what to do. nom: a path; ligne: how it is
/// written; titre: of the box.
void AnnonceNomPerdu(const QString &nom, LigneNom ligne, const QString &titre);

/// Same, once a run, for a name between quotes that the operator has not chosen in this command.
void AnnonceNomRepris(const QString &nom, const QString &titre);

/// Same, for all names in "Dorvanel.CFG", when the operator has chosen one of them. dosRecep: as for SauveCfg().
void AnnonceCfgPerdu(const QString &dosRecep, const QString &titre);

/// Warns the operator when a text that he has typed will lose letters in the file that it is saved in.
void AnnonceSaisiePerdue(const QString &saisie, const QString &titre);

/// Same as AnnonceNomPerdu(), for the application folder, which the first start writes in both forms.
void AnnonceDossierPerdu();
