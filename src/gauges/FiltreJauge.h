#pragma once

#include <QtGlobal>

/// The end of a bench reception of NbJauges bursts. It cleans the bursts in Lignes and reads their measures into Jauge.
/// The operator corrects a corrector number that is out of range, and is told what could not be read. It stores the
/// cleaned text as CheminRecep(), has the operator complete each measure if the machine is a lathe, and makes the gauge
/// file (CreFicJauge). Afterwards NbJauges is the number of measures read. If that is 0, there is no gauge file, and
/// the text of the bench stays as it came.
///
/// enAttente: number of characters that had come for a further tool when the operator ended the session. Needs
/// ParamMac, NomFicRecep and DossierRecep. Its boxes and dialogs run the event loop. Raises what EcritFichierTexte()
/// and CreFicJauge() raise.
void FiltreJauge(qsizetype enAttente = 0);
