#include "platform/base/FinDemandee.h"

#include "platform/base/Reprise.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int Signaux[] = {SIGTERM, SIGHUP, SIGINT};

int tube[2] = {-1, -1}; // a pipe: the signal handler writes to [1], the event loop reads from [0]

/// The signal handler. It may interrupt the program anywhere, so it does nothing but write to the pipe.
void Note(int numero)
{
    const int cause = errno;
    const char octet = static_cast<char>(numero);
    [[maybe_unused]] const auto ecrits = write(tube[1], &octet, 1);
    errno = cause;
}

} // namespace

struct FinDemandee::Systeme
{
    void Guette();
    void Finit();

    std::function<void()> avant;
    std::unique_ptr<QSocketNotifier> guetteur; ///< without it a signal ends the process at once, as usual
};

FinDemandee::FinDemandee(std::function<void()> avant)
    : m_systeme(new Systeme{std::move(avant), nullptr})
{
    if (pipe2(tube, O_CLOEXEC | O_NONBLOCK) == 0)
        m_systeme->Guette();
}

FinDemandee::~FinDemandee()
{
    if (!m_systeme->guetteur)
        return;
    for (const int numero : Signaux) {
        struct sigaction ancienne = {};
        if (sigaction(numero, nullptr, &ancienne) == 0 && ancienne.sa_handler == Note)
            std::signal(numero, SIG_DFL);
    }
    m_systeme->guetteur.reset();
    close(tube[0]);
    close(tube[1]);
}

void FinDemandee::Systeme::Guette()
{
    guetteur = std::make_unique<QSocketNotifier>(tube[0], QSocketNotifier::Read);
    QObject::connect(guetteur.get(), &QSocketNotifier::activated, guetteur.get(), [this] { Finit(); });
    struct sigaction action = {};
    action.sa_handler = Note;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int numero : Signaux) {
        struct sigaction ancienne = {};
        // A signal that the program was started to ignore (nohup) stays ignored.
        if (sigaction(numero, nullptr, &ancienne) == 0 && ancienne.sa_handler != SIG_IGN)
            sigaction(numero, &action, nullptr);
    }
}

/// From the event loop. The process ends by the same signal.
void FinDemandee::Systeme::Finit()
{
    char numero = SIGTERM;
    Reprise([&numero] { return read(tube[0], &numero, 1); });
    guetteur->setEnabled(false);
    avant();
    std::signal(numero, SIG_DFL);
    std::raise(numero);
}
