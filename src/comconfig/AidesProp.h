#pragma once

namespace Ui {
class Prop;
}

/// Ties the fourteen help buttons of the properties dialog to their texts: what each setting means to the machine.
void BrancheAides(const Ui::Prop &dialogue);
