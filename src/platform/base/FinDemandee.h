#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

/// Catches the system's request to end the process, runs a last function, then lets the process end. Only one instance
/// may exist at a time. Each system has its own unit for this class.
/// Linux: the signals of a closed terminal, of Ctrl+C in it and of the end of a session; the function runs from the
/// event loop, and the process ends by the same signal. Windows: the end of the session; after the function all windows
/// are closed, which asks what closing them asks.
class FinDemandee
{
public:
    /// avant: the function to run before the process ends. A second signal ends the process without waiting for it.
    explicit FinDemandee(std::function<void()> avant);
    ~FinDemandee();
    Q_DISABLE_COPY_MOVE(FinDemandee)

private:
    struct Systeme;
    const std::unique_ptr<Systeme> m_systeme;
};
