#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <chrono>

/// Wakes the event loop once, at a moment given to the nanosecond. Qt's timers round up to whole milliseconds, in two
/// places: 1 to 2 ms late, which is several characters of a fast line.
class MinuteurPrecis : public QObject
{
    Q_OBJECT
public:
    using Instant = std::chrono::time_point<std::chrono::steady_clock, std::chrono::nanoseconds>;

    /// Raises ErreurPort::Indisponible when the system has no timer left.
    MinuteurPrecis();
    ~MinuteurPrecis() override;

    /// Echu comes at quand, or at once when that has passed; a former moment is forgotten.
    void Arme(Instant quand);
    void Arrete();

Q_SIGNALS:
    void Echu();

private:
    void Lit();

    const int m_fd;
    QSocketNotifier m_reveil;
};
