#include "platform/base/FinDemandee.h"

#include "platform/base/Reprise.h"

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

FinDemandee::FinDemandee(std::function<void()> avant)
    : m_avant(std::move(avant))
{
    if (pipe2(tube, O_CLOEXEC | O_NONBLOCK) < 0)
        return; // without the pipe a signal ends the process at once, as usual
    m_guetteur = std::make_unique<QSocketNotifier>(tube[0], QSocketNotifier::Read);
    QObject::connect(m_guetteur.get(), &QSocketNotifier::activated, m_guetteur.get(), [this] { Finit(); });
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

FinDemandee::~FinDemandee()
{
    if (!m_guetteur)
        return;
    for (const int numero : Signaux) {
        struct sigaction ancienne = {};
        if (sigaction(numero, nullptr, &ancienne) == 0 && ancienne.sa_handler == Note)
            std::signal(numero, SIG_DFL);
    }
    m_guetteur.reset();
    close(tube[0]);
    close(tube[1]);
}

void FinDemandee::Finit()
{
    char numero = SIGTERM;
    Reprise([&numero] { return read(tube[0], &numero, 1); });
    m_guetteur->setEnabled(false);
    m_avant();
    std::signal(numero, SIG_DFL);
    std::raise(numero);
}
