#pragma once

#include "platform/controles/Volumes.h"

#include <QFileSystemWatcher>
#include <QTimer>

/// Watches folders, and the volumes of this PC. Change comes 100 ms after something has come or gone in one of the
/// folders, or a volume anywhere; all that happens meanwhile is one change, so copying 1000 files is not 1000 readings.
class GuetteurDossiers : public QFileSystemWatcher
{
    Q_OBJECT

public:
    GuetteurDossiers();

Q_SIGNALS:
    void Change();

private:
    void ReprendGarde();
    void Annonce();

    GuetteurVolumes m_volumes;
    QTimer m_delai;
};
