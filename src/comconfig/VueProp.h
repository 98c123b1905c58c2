#pragma once

#include "platform/base/Erreur.h"

#include <optional>

class QLineEdit;

namespace Ui {
class Prop;
}

// The road between ParamCom and the controls of the properties dialog, in both directions.

/// Fills the lists, in their order.
void RemplitListes(const Ui::Prop &dialogue);

/// Has each port of the list, and the one chosen, say which device of this PC it stands for in this moment.
void DecritPorts(const Ui::Prop &dialogue);

/// From now on a click on an option writes its number to its field; the group's other controls follow, and do so at
/// once for the option that stands there.
void BrancheOptions(const Ui::Prop &dialogue);

/// The options that only the opening shows, FinLigRecep and TypeEnvoi.
void MontreChoixInitiaux(const Ui::Prop &dialogue);

/// Shows all the rest of the record. What was typed and not taken is overwritten. A value that a list or group does not
/// have leaves it as it is.
void ParamDefaut(const Ui::Prop &dialogue);

/// Shows the reception folders and the editor.
void MontreDossiers(const Ui::Prop &dialogue);

/// A number that does not fit its field: its box, and what the operator is told.
struct SaisieRefusee
{
    QLineEdit *boite;
    QString raison;
};

/// The first one, if there is one, of those that an Apply takes; of the others too where aSauver is true.
std::optional<SaisieRefusee> NombreTropGrand(const Ui::Prop &dialogue, bool aSauver);

/// Takes lists and boxes into the record. A number that does not fit leaves its field as it was and is the failure that
/// stays pending. A list in which nothing is chosen leaves its field as it was too.
ErreurEnAttente PrendControles(const Ui::Prop &dialogue);

/// Takes what only a saving takes: TailleRecep and TypeEnvoi. Raises Depassement, which NombreTropGrand foretells.
void PrendTransferts(const Ui::Prop &dialogue);
