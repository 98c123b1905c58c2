#pragma once

#include <QFile>
#include <QObject>
#include <QStringList>

// The USB keys, shares and other volumes that are mounted where an operator looks for them: in /media, in the folder of
// his own session there or in /run/media, and in /mnt. The system's table of mounts is all that is read, so a share
// whose server is silent keeps nobody waiting. Where the system has no such table there are none.

/// The folders that the volumes are mounted on, without final separator, in the order of their paths.
QStringList Volumes();

/// The same for a table of mounts in the form of /proc/self/mountinfo and for the session of utilisateur.
QStringList VolumesDeTable(const QByteArray &table, const QString &utilisateur);

/// Tells when something is mounted or taken away, anywhere on this PC.
class GuetteurVolumes : public QObject
{
    Q_OBJECT

public:
    GuetteurVolumes();

Q_SIGNALS:
    void Change();

private:
    QFile m_table; // open as long as it is watched
};
