#include "donnees/EtatDocument.h"

EtatDocument Document;
