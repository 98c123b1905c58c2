#pragma once

class LabelElide;
class QString;

/// Shows the path of a folder in label; when this PC has no such folder, as a warning with the reason. dossier: an
/// absolute path, or one relative to the application folder.
void MontreDossier(LabelElide *label, const QString &dossier);

/// Same for the full path of a file, "" for none.
void MontreFichier(LabelElide *label, const QString &fichier);
