#include "platform/serie/windows/EchangeWindows.h"

#include "platform/base/Erreur.h"
#include "platform/base/windows/PoigneeWindows.h"
#include "platform/serie/ErreurPort.h"

#include <windows.h>

namespace {

constexpr DWORD DelaiFin = 100;     // ms, for an operation that the driver can end at once
constexpr DWORD DelaiAbandon = 200; // ms, for the driver to cancel

} // namespace

struct EchangeWindows::Etat
{
    OVERLAPPED systeme{};
    PoigneeWindows signal;
    QByteArray octets;
};

EchangeWindows::EchangeWindows(void *port)
    : m_port(port)
    , m_etat(std::make_unique<Etat>())
{
    m_etat->signal.reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!m_etat->signal)
        throw Erreur(ErreurPort::Indisponible, QString(), static_cast<int>(GetLastError()));
    m_etat->systeme.hEvent = m_etat->signal.get();
}

EchangeWindows::~EchangeWindows()
{
    Abandonne();
    // If the driver did not cancel, it may still write to this memory: it is never freed.
    if (EnCours())
        static_cast<void>(m_etat.release());
}

void EchangeWindows::Prepare(const QByteArray &octets)
{
    m_etat->octets = octets;
    m_etat->systeme.InternalHigh = 0; // a refused operation does not change it
    ResetEvent(m_etat->signal.get());
}

void EchangeWindows::Lit(int nombre)
{
    Prepare(QByteArray(nombre, '\0'));
    Commence(ReadFile(m_port, m_etat->octets.data(), static_cast<DWORD>(nombre), nullptr, &m_etat->systeme) != FALSE);
}

void EchangeWindows::Ecrit(const QByteArray &octets)
{
    Prepare(octets);
    const char *debut = m_etat->octets.constData();
    Commence(WriteFile(m_port, debut, static_cast<DWORD>(Taille()), nullptr, &m_etat->systeme) != FALSE);
}

void EchangeWindows::Commence(bool accepte)
{
    const DWORD cause = accepte ? ERROR_SUCCESS : GetLastError();
    m_refus = cause == ERROR_IO_PENDING ? 0 : static_cast<int>(cause);
    if (m_refus != 0)
        Reveille();
}

bool EchangeWindows::EnCours() const
{
    return m_refus == 0 && !HasOverlappedIoCompleted(&m_etat->systeme);
}

void *EchangeWindows::Signal() const
{
    return m_etat->signal.get();
}

void EchangeWindows::Reveille()
{
    SetEvent(m_etat->signal.get());
}

void EchangeWindows::Termine()
{
    if (EnCours() && WaitForSingleObject(Signal(), DelaiFin) != WAIT_OBJECT_0)
        Abandonne();
}

void EchangeWindows::Abandonne()
{
    if (!EnCours())
        return;
    CancelIoEx(m_port, &m_etat->systeme);
    WaitForSingleObject(Signal(), DelaiAbandon);
}

int EchangeWindows::Taille() const
{
    return static_cast<int>(m_etat->octets.size());
}

void EchangeWindows::Exige() const
{
    DWORD passes = 0;
    int cause = m_refus;
    if (cause == 0 && GetOverlappedResult(m_port, &m_etat->systeme, &passes, FALSE) == FALSE)
        cause = static_cast<int>(GetLastError());
    if (cause != 0 || static_cast<int>(passes) < Taille())
        throw Erreur(ErreurPort::Lecture, QString(), cause);
}

QByteArray EchangeWindows::Octets() const
{
    return m_etat->octets.left(static_cast<qsizetype>(m_etat->systeme.InternalHigh));
}
