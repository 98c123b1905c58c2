#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Catches the signals by which the system asks the process to end: a closed terminal, Ctrl+C in it, the end of a
/// session. It runs a last function from the event loop, then ends the process by the same signal. Only one instance
/// may exist at a time.
class FinDemandee
{
public:
    /// avant: the function to run before the process ends. A second signal ends the process without waiting for it.
    explicit FinDemandee(std::function<void()> avant);
    ~FinDemandee();
    Q_DISABLE_COPY_MOVE(FinDemandee)

private:
    void Finit();

    std::function<void()> m_avant;
    std::unique_ptr<QSocketNotifier> m_guetteur;
};
