#include "donnees/EtatDocument.h"

#include "donnees/Chemins.h"

EtatDocument Document;

void EtatDocument::Nomme(const QString &chemin)
{
    NomFichier = chemin;
    TitreFichier = NomSeul(chemin);
    NomRecu.clear();
}
