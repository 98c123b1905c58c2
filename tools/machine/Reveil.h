#pragma once

#include <QtGlobal>

/// Wakes up a poll(), from another thread or from a signal handler.
class Reveil
{
public:
    /// Raises std::system_error when the process has no file descriptor left.
    Reveil();
    ~Reveil();
    Q_DISABLE_COPY_MOVE(Reveil)

    /// Wakes the poll() up. Safe in a signal handler.
    void Sonne() noexcept;
    /// Acknowledges the waking.
    void Acquitte() noexcept;
    /// The descriptor to poll. Readable from Sonne() until Acquitte().
    int Descripteur() const { return m_lecture; }

private:
    int m_lecture = -1;
    int m_ecriture = -1;
};
