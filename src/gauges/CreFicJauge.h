#pragma once

/// Makes the gauge file of ParamMac's machine from Jauge(1) to Jauge(NbJauges): brings X and Z to whole micrometres, X
/// to the radius or diameter that the machine wants and to its pocket, warns of what is above the limits, writes the
/// file over CheminRecep() and makes it the document. Jauge holds the new X and Z afterwards, so that it works once on
/// a set of measures; Lignes holds the file.
/// Raises what EcritFichierTexte raises, and Depassement for a measure that is no finite number; the file then stays
/// as it was.
void CreFicJauge();
