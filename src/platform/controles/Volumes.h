#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

// The USB keys, shares and other volumes that are mounted in a folder. Each system has its own unit for this.
// Linux: those in the usual places, /media, /media/USER, /run/media/USER and /mnt. Only the system's table of mounts is
// read, so a share whose server does not answer causes no wait. Without such a table there are none.
// Windows: none, since each volume has a drive letter.

/// The mount points of the volumes, without final separator, sorted by path.
QStringList Volumes();

/// Emits Change when anything is mounted or unmounted on this PC.
class GuetteurVolumes : public QObject
{
    Q_OBJECT

public:
    GuetteurVolumes();
    ~GuetteurVolumes() override;

Q_SIGNALS:
    void Change();

private:
    struct Systeme;
    const std::unique_ptr<Systeme> m_systeme;
};
