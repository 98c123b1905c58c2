#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

/// Watches folders, and tells a moment after something has come or gone in one of them: copying 1000 files is not 1000
/// readings.
class GuetteurDossiers : public QFileSystemWatcher
{
    Q_OBJECT

public:
    GuetteurDossiers();

Q_SIGNALS:
    void Change();

private:
    QTimer m_delai;
};
