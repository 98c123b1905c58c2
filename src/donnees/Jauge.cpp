#include "donnees/Jauge.h"

EtatJauges Jauges;
