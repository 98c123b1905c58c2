#pragma once

#include "platform/base/Erreur.h"

#include <optional>

class QLineEdit;

namespace Ui {
class Prop;
}

// Moves values between ParamCom and the controls of the properties dialog, in both directions.

/// Fills the drop-down lists.
void RemplitListes(const Ui::Prop &dialogue);

/// Writes the device of this PC behind each port into the tool tips of the list of ports, as of now.
void DecritPorts(const Ui::Prop &dialogue);

/// Makes a click on an option write its number into its field and update the controls that depend on it. They are
/// updated at once for the options that are selected now.
void BrancheOptions(const Ui::Prop &dialogue);

/// Selects the options of FinLigRecep and TypeEnvoi, which are shown only when the dialog opens.
void MontreChoixInitiaux(const Ui::Prop &dialogue);

/// Shows all other fields of the record. Text that was typed and not applied is lost. A value that a list or a group of
/// options does not have leaves its control as it is.
void ParamDefaut(const Ui::Prop &dialogue);

/// Shows the reception folders and the editor.
void MontreDossiers(const Ui::Prop &dialogue);

/// A typed number too large for its field: its box, and the message for the operator.
struct SaisieRefusee
{
    QLineEdit *boite;
    QString raison;
};

/// The first such number among those that "Apply" reads; with aSauver also among those that only a saving reads.
std::optional<SaisieRefusee> NombreTropGrand(const Ui::Prop &dialogue, bool aSauver);

/// Reads lists and boxes into the record. A number too large for its field, or a list without a choice, leaves the
/// field as it was; the number is the failure that stays pending.
ErreurEnAttente PrendControles(const Ui::Prop &dialogue);

/// Reads what only a saving reads: TailleRecep and TypeEnvoi. Raises Depassement for a number that NombreTropGrand()
/// would report.
void PrendTransferts(const Ui::Prop &dialogue);
