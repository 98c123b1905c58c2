#include "platform/serie/AvanceEmission.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;
using Duree = AvanceEmission::Duree;

/// A lead: a number of characters, or a time where a fast line carries more characters in that time.
struct LongueurAvance
{
    int nombre;
    Duree temps;

    int En(Duree caractere) const { return std::max(nombre, static_cast<int>(temps / caractere)); }
};
// With this lead at most 7 characters follow an XOFF up to 19200 baud, and about 40 at 115200. The time covers the 3 ms
// or so that redrawing a window takes.
constexpr LongueurAvance Courte{6, 3500us};
// With the character under way at most 10 follow an XOFF, which every machine has room for. At 115200 baud at most 60
// do.
constexpr LongueurAvance Longue{9, 5ms};
constexpr int PasMax = 3; // steps from the short lead to the long one

constexpr Duree DetteMax = 10ms;
// The most that one standstill adds to the debt. No lead bridges a longer one, or there was simply nothing to send.
constexpr Duree UnRetard = 5ms;
constexpr int Remise = 200; // the debt falls by the elapsed time divided by this
constexpr Duree Essai = 5s; // before a shorter lead is tried

} // namespace

void AvanceEmission::Regle(Duree caractere)
{
    *this = AvanceEmission();
    m_caractere = caractere;
}

int AvanceEmission::Nombre() const
{
    const int courte = Courte.En(m_caractere);
    return courte + (Longue.En(m_caractere) - courte) * m_pas / PasMax;
}

void AvanceEmission::Note(Instant maintenant, Duree aSec)
{
    const Duree passe = maintenant - m_dernier;
    m_dernier = maintenant;
    m_calme += passe;
    m_dette = std::max(Duree(0), m_dette - passe / Remise) + std::min(aSec, UnRetard);
    if (m_dette > DetteMax) {
        m_pas = std::min(m_pas + 1, PasMax);
        m_dette = m_calme = Duree(0);
    } else if (m_calme > Essai) {
        m_pas = std::max(m_pas - 1, 0);
        m_calme = Duree(0);
    }
}
