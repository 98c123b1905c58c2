#pragma once

#include <QString>

class QWidget;

/// Asks the operator for a folder of the disk, in a dialog of that titre owned by fenetre, which opens on depart (see
/// DossierDeDepart). The result is its path without a final separator, but for a root; "" when nothing was chosen.
QString ChoixDossier(QWidget *fenetre, const QString &titre, const QString &depart);
