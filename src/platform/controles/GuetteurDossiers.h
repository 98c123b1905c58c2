#pragma once

#include "platform/controles/Volumes.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>

/// Watches folders and the volumes of this PC. Change is emitted 100 ms after an entry of a watched folder, or any
/// volume, has come or gone. Everything in between counts as one change, so copying 1000 files does not cause 1000
/// readings.
class GuetteurDossiers : public QFileSystemWatcher
{
    Q_OBJECT

public:
    GuetteurDossiers();

    /// Calls travail; meanwhile nothing is watched and Change is not emitted. Windows refuses to rename a folder above
    /// a watched one, and a deleted folder that is watched keeps its name. Raises what travail raises.
    void Suspend(const std::function<void()> &travail);

Q_SIGNALS:
    void Change();

private:
    void ReprendGarde();
    void Annonce();

    GuetteurVolumes m_volumes;
    QTimer m_delai;
};
