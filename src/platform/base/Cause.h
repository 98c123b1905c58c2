#pragma once

#include <span>

/// Why the system refused an operation, as far as the operator is told.
enum class Cause {
    Inconnue,
    Absent,
    PasUnDossier,
    EstUnDossier,
    ExisteDeja,
    NomTropLong,
    SansDroits,
    NonPermis,
    ProtegeEnEcriture,
    DisquePlein,
    QuotaEpuise,
    FichierTropGrand,
    TropDeFichiers,        ///< open in the program
    TropDeFichiersSysteme, ///< open in all programs
    TropDeLiens,
    LiensEnBoucle,
    DossierNonVide,
    Utilise,
    NonAccepte, ///< a name or a setting
    NeRepondPlus,
    AppareilParti,
    AppareilAbsent,
};

/// A number that the system has for a cause: errno or, on Windows, GetLastError().
struct NumeroSysteme
{
    int numero;
    Cause cause;
};

/// The numbers that are known. Each system has its own unit for this.
std::span<const NumeroSysteme> NumerosSysteme();

/// The cause that a number of the system stands for.
Cause CauseDe(int numero);
