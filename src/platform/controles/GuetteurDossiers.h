#pragma once

#include "platform/controles/Volumes.h"

#include <QFileSystemWatcher>
#include <QTimer>

/// Watches folders and the volumes of this PC. Change is emitted 100 ms after an entry of a watched folder, or any
/// volume, has come or gone. Everything in between counts as one change, so copying 1000 files does not cause 1000
/// readings.
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
