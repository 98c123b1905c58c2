#include "platform/serie/MinuteurPrecis.h"

#include "platform/base/Erreur.h"
#include "platform/base/windows/PoigneeWindows.h"
#include "platform/serie/ErreurPort.h"

#include <QWinEventNotifier>

#include <algorithm>
#include <optional>

#include <windows.h>

namespace {

using HorlogeReelle = std::chrono::steady_clock; // the real one, even when a test hands in another
using Pas = std::chrono::duration<LONGLONG, std::ratio<1, 10'000'000>>; // the unit of Windows: 100 ns

constexpr DWORD HauteResolution = 0x00000002; // CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, missing in older headers
constexpr DWORD Ordinaire = 0;

/// A timer of high resolution has its own clock. An ordinary one follows the system's tick, which Windows sets back to
/// 15.6 ms for programs that are out of sight; Windows 10 before version 1803 has no other.
PoigneeWindows OuvreMinuteur()
{
    for (const DWORD genre : {HauteResolution, Ordinaire}) {
        if (const HANDLE minuteur = CreateWaitableTimerExW(nullptr, nullptr, genre, TIMER_ALL_ACCESS))
            return PoigneeWindows(minuteur);
    }
    throw Erreur(ErreurPort::Indisponible, QString(), static_cast<int>(GetLastError()));
}

} // namespace

struct MinuteurPrecis::Interne
{
    void Arme(std::chrono::nanoseconds delai)
    {
        LARGE_INTEGER dans;
        dans.QuadPart = -std::chrono::ceil<Pas>(std::max(delai, std::chrono::nanoseconds::zero()))
                             .count(); // negative: counted from now
        SetWaitableTimer(minuteur.get(), &dans, 0, nullptr, nullptr, FALSE);
    }

    const PoigneeWindows minuteur = OuvreMinuteur();
    QWinEventNotifier reveil{minuteur.get()};
    std::optional<HorlogeReelle::time_point> echeance;
};

MinuteurPrecis::MinuteurPrecis()
    : m_interne(std::make_unique<Interne>())
{
    connect(&m_interne->reveil, &QWinEventNotifier::activated, this, [this] {
        if (!m_interne->echeance)
            return;
        // The wake-up belongs to an earlier Arme(), or came too early.
        if (const auto reste = *m_interne->echeance - HorlogeReelle::now(); reste > reste.zero()) {
            m_interne->Arme(reste);
            return;
        }
        m_interne->echeance.reset();
        Q_EMIT Echu();
    });
}

MinuteurPrecis::~MinuteurPrecis() = default;

void MinuteurPrecis::Arme(std::chrono::nanoseconds delai)
{
    m_interne->echeance = HorlogeReelle::now() + delai;
    m_interne->Arme(delai);
}

void MinuteurPrecis::Arrete()
{
    m_interne->echeance.reset();
    CancelWaitableTimer(m_interne->minuteur.get());
}
