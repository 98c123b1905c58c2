#pragma once

#include <QtGlobal>

/// The end of a bench reception of NbJauges bursts: cleans the bursts that stand in Lignes, reads their measures into
/// Jauge, has the operator correct a corrector number out of range and tells him what could not be read, stores the
/// cleaned text as CheminRecep(), has him complete each measure on a lathe, and makes the gauge file (CreFicJauge).
/// NbJauges is the number of measures read afterwards; with none there is no gauge file, and the text of the bench
/// stays. enAttente: characters that had come for a further tool when the operator ended the session. Needs ParamMac,
/// NomFicRecep and DossierRecep in place. Its boxes and dialogs run the event loop. Raises what EcritFichierTexte and
/// CreFicJauge raise.
void FiltreJauge(qsizetype enAttente = 0);
