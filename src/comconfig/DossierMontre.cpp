#include "comconfig/DossierMontre.h"

#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "platform/controles/LabelElide.h"

#include <QFileInfo>

namespace {

constexpr Texte3 Absent{u"Ce dossier n'existe pas sur ce PC.", u"This folder does not exist on this PC.",
                        u"Este directorio no existe en este PC."};

} // namespace

void MontreDossier(LabelElide *label, const QString &dossier)
{
    const bool present = dossier.isEmpty() || QFileInfo(DepuisDossierApplication(dossier)).isDir();
    label->setText(dossier);
    label->Avertit(present ? QString() : Texte(Absent));
}
