#pragma once

namespace Ui {
class Prop;
}

/// Connects the fourteen help buttons of the properties dialog with their texts, which say what each setting means for
/// the machine.
void BrancheAides(const Ui::Prop &dialogue);
