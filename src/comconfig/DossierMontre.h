#pragma once

class LabelElide;
class QString;

/// Shows the path of a folder in label, as a warning with its reason where this PC has no such folder. dossier: a full
/// path, or one beside the program.
void MontreDossier(LabelElide *label, const QString &dossier);
