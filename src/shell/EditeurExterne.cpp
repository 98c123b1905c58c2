#include "shell/EditeurExterne.h"

#include "donnees/Reglages.h"
#include "locale/Legendes.h"
#include "shell/Document.h"
#include "shell/ProgrammesExternes.h"

void Mnu_EditProg()
{
    AppliqueLangue();
    const QString editeur = Reglages.EditeurCN.toLower();
    if (editeur.endsWith(QLatin1String("wordpad.exe")) || editeur.endsWith(QLatin1String("write.exe")))
        OuvreAvecTraitementDeTexte(Document.NomFichier);
    else
        OuvreAvecEditeur(Reglages.EditeurCN, Document.NomFichier);
}
