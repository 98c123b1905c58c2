#pragma once

#include <QtGlobal>

/// An alarm that ends a poll(): rung by another thread or by a signal handler.
class Reveil
{
public:
    /// Raises std::system_error when the process has no file descriptor left.
    Reveil();
    ~Reveil();
    Q_DISABLE_COPY_MOVE(Reveil)

    /// Rings. Safe in a signal handler.
    void Sonne() noexcept;
    /// Stops the ringing.
    void Acquitte() noexcept;
    /// Readable while it rings.
    int Descripteur() const { return m_lecture; }

private:
    int m_lecture = -1;
    int m_ecriture = -1;
};
