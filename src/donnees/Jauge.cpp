#include "donnees/Jauge.h"

std::array<JaugeOutil, CapaciteJauges + 1> Jauge;

int NbJauges = 0;
int LigneJauge = 0;
int JaugeRecue = 0;
int JaugeSuivante = 0;
int FinJauges = 0;
int JauTourFait = 0;

void VideJauges()
{
    Jauge = {};
    for (int *variable : {&NbJauges, &LigneJauge, &JaugeRecue, &JaugeSuivante, &FinJauges, &JauTourFait})
        *variable = 0;
}
