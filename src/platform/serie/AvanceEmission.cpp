#include "platform/serie/AvanceEmission.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;
using Duree = AvanceEmission::Duree;

/// A lead is a number of characters, or a line time where a fast line carries more in it.
struct LongueurAvance
{
    int nombre;
    Duree temps;

    int En(Duree caractere) const { return std::max(nombre, static_cast<int>(temps / caractere)); }
};
// Up to 19200 baud 7 characters come behind an XOFF. At 115200 it is about 40: a window that is drawn anew keeps the PC
// for some 3 ms.
constexpr LongueurAvance Courte{6, 3500us};
// One more is under way when XOFF comes, and the tenth is the last that every machine has room for. At 115200 baud this
// lead brings at most 60.
constexpr LongueurAvance Longue{9, 5ms};
constexpr int PasMax = 3; // from the one to the other

constexpr Duree DetteMax = 10ms;
// Most that one standstill adds. A longer one is bridged by no lead, or there was nothing to send.
constexpr Duree UnRetard = 5ms;
constexpr int Remise = 200; // part of the time that is paid off
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
