#pragma once

/// The end of a bench reception: cleans the bursts that stand in Lignes, reads NbJauges measures from them into Jauge,
/// has the operator correct a corrector number out of range, stores the cleaned text as CheminRecep(), has him complete
/// each measure on a lathe, and makes the gauge file (CreFicJauge). Needs ParamMac, NomFicRecep and DossierRecep in
/// place. Its boxes and dialogs run the event loop. Raises what EcritFichierTexte and CreFicJauge raise.
void FiltreJauge();
