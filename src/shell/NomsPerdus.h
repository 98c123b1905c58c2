#pragma once

#include <QString>

// Names that the settings files cannot keep. They hold the letters of code page 1252, most of them between double
// quotes without any escaping: a name with other letters or with a quote works until the program ends, and the next
// start looks for another one.

/// How a name stands on its line: between quotes, or bare, where it ends at a comma.
enum class LigneNom {
    Citee,
    Nue,
};

/// Tells the operator when a name that he has chosen will be lost, and what to do; otherwise nothing. nom: a path;
/// titre: of the box.
void AnnonceNomPerdu(const QString &nom, LigneNom ligne, const QString &titre);

/// Same for a name that the program takes over from elsewhere, or writes along with another, between quotes: told once
/// a run.
void AnnonceNomRepris(const QString &nom, const QString &titre);

/// Same for the names in "Dorvanel.CFG", of which the operator has chosen one. dosRecep: as for SauveCfg().
void AnnonceCfgPerdu(const QString &dosRecep, const QString &titre);

/// Tells the operator when a text that he has entered loses letters in the file that it is saved in.
void AnnonceSaisiePerdue(const QString &saisie, const QString &titre);

/// Same as AnnonceNomPerdu() for the application folder, which a first start writes down in both forms.
void AnnonceDossierPerdu();
