#pragma once

#include <QFile>
#include <QObject>
#include <QStringList>

// The USB keys, shares and other volumes mounted in the usual places: /media, /media/USER, /run/media/USER and /mnt.
// Only the system's table of mounts is read, so a share whose server does not answer causes no wait. On a system
// without such a table there are none.

/// The mount points of the volumes, without final separator, sorted by path.
QStringList Volumes();

/// Same for a given table, in the form of /proc/self/mountinfo, and the user name utilisateur.
QStringList VolumesDeTable(const QByteArray &table, const QString &utilisateur);

/// Emits Change when anything is mounted or unmounted on this PC.
class GuetteurVolumes : public QObject
{
    Q_OBJECT

public:
    GuetteurVolumes();

Q_SIGNALS:
    void Change();

private:
    QFile m_table; // open as long as this object watches it
};
