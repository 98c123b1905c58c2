#pragma once

namespace Ui {
class Em_Rc;
}

/// The serial control's one event: shows what happens on the line in Etat, empties the receive buffer when the system
/// has lost characters, and is the reception itself while an EcouteFichier lives.
void MSComm1_OnComm();

/// While it lives, a receive event gathers the characters in Text2 until the end-of-transfer string; one run at a time,
/// whatever arrives during its yields.
class EcouteFichier
{
public:
    explicit EcouteFichier(Ui::Em_Rc &dialogue);
    ~EcouteFichier();
    EcouteFichier(const EcouteFichier &) = delete;
    EcouteFichier &operator=(const EcouteFichier &) = delete;
};
