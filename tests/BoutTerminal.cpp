#include "BoutTerminal.h"

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

BoutTerminal::BoutTerminal()
    : m_fd(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK))
{
    if (m_fd < 0 || grantpt(m_fd) != 0 || unlockpt(m_fd) != 0)
        qFatal("the system gives no pseudo-terminal");
    char nom[64];
    ptsname_r(m_fd, nom, sizeof nom);
    m_chemin = QString::fromLocal8Bit(nom);
}

BoutTerminal::~BoutTerminal()
{
    Coupe();
}

void BoutTerminal::Envoie(const QByteArray &octets) const
{
    qsizetype parti = 0;
    while (parti < octets.size()) {
        const ssize_t n = write(m_fd, octets.constData() + parti, static_cast<size_t>(octets.size() - parti));
        if (n > 0)
            parti += n;
        else
            QTest::qWait(1); // the other end is full; its reader lives in this thread's event loop
    }
}

QByteArray BoutTerminal::Prend() const
{
    QByteArray octets(65536, Qt::Uninitialized);
    const ssize_t n = read(m_fd, octets.data(), static_cast<size_t>(octets.size()));
    octets.truncate(n > 0 ? n : 0);
    return octets;
}

void BoutTerminal::Coupe()
{
    if (m_fd >= 0)
        close(m_fd);
    m_fd = -1;
}
