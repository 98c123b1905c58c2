#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Hears when the system asks the process to end (a terminal that is closed, Ctrl+C in it, the end of a session): the
/// last things are done from the event loop, then the process ends by that same signal. One at a time.
class FinDemandee
{
public:
    /// avant: what is done before the process ends. A second demand does not wait for it.
    explicit FinDemandee(std::function<void()> avant);
    ~FinDemandee();
    Q_DISABLE_COPY_MOVE(FinDemandee)

private:
    void Finit();

    std::function<void()> m_avant;
    std::unique_ptr<QSocketNotifier> m_guetteur;
};
