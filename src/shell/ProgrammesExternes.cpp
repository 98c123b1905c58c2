#include "shell/ProgrammesExternes.h"

#include "locale/Langue.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/Lanceur.h"

namespace {

constexpr Texte3 ErreurTitre{u"Erreur", u"Error", u"Error"};
constexpr Texte3 EditeurIntrouvable{u"Erreur pendant l'ouverture du fichier ou\rEditeur non trouvé !",
                                    u"Error during the opening of the file or\rEditor not found !",
                                    u"Error durante la apertura del fichero o\rEditor no encontrado !"};

} // namespace

void OuvreAvecEditeur(const QString &commande, const QString &chemin)
{
    try {
        LanceProgramme(commande, chemin);
    } catch (const Erreur &) {
        MsgBox(Texte(EditeurIntrouvable), Boite::Critique, Texte(ErreurTitre));
    }
}

void OuvreAvecTraitementDeTexte(const QString &chemin)
{
    OuvreAvecEditeur(QStringLiteral("write"), chemin);
}
