#include "comconfig/CheminMontre.h"

#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "platform/controles/LabelElide.h"
#include "platform/fichiers/FichierTexte.h"

#include <QFileInfo>

namespace {

constexpr Texte3 DossierAbsent{u"Ce dossier n'existe pas sur ce PC.", u"This folder does not exist on this PC.",
                               u"Este directorio no existe en este PC."};
constexpr Texte3 FichierAbsent{u"Ce fichier n'existe pas sur ce PC.", u"This file does not exist on this PC.",
                               u"Este fichero no existe en este PC."};

void Montre(LabelElide *label, const QString &chemin, bool present, const Texte3 &absent)
{
    label->setText(chemin);
    label->Avertit(present || chemin.isEmpty() ? QString() : Texte(absent));
}

} // namespace

void MontreDossier(LabelElide *label, const QString &dossier)
{
    Montre(label, dossier, QFileInfo(DepuisDossierApplication(dossier)).isDir(), DossierAbsent);
}

void MontreFichier(LabelElide *label, const QString &fichier)
{
    Montre(label, fichier, FichierExiste(fichier), FichierAbsent);
}
