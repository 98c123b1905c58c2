#pragma once

#include "platform/Volumes.h"

#include <QFileSystemWatcher>
#include <QTimer>

/// Watches folders, and tells a moment after something has come or gone in one of them, or a volume anywhere: copying
/// 1000 files is not 1000 readings.
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
