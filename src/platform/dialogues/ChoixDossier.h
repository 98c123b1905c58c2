#pragma once

#include <QString>

class QWidget;

/// Asks the operator for a folder on the disk. titre: of the dialog; fenetre: its owner; depart: the folder that it
/// opens on (see DossierDeDepart). The result is the folder's path without a final separator, except for a root. It is
/// "" when nothing was chosen.
QString ChoixDossier(QWidget *fenetre, const QString &titre, const QString &depart);
