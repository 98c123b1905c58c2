#include "platform/CadenceEmission.h"

#include <algorithm>

namespace {

constexpr int AvanceMin = 16; // what the FIFO of a common serial chip takes anyway
constexpr CadenceEmission::Duree AvanceTemps = std::chrono::milliseconds(15);

} // namespace

void CadenceEmission::Regle(int vitesse, double bitsParCaractere)
{
    m_caractere = Duree(qRound64(bitsParCaractere * 1e9 / vitesse));
    m_avance = std::max(AvanceMin, static_cast<int>(AvanceTemps / m_caractere));
}

int CadenceEmission::Place(Instant maintenant, int systeme) const
{
    if (m_suspendue)
        return 0;
    const Duree arrondi = m_caractere - Duree(1);
    const int enRoute = static_cast<int>((Reste(maintenant) + arrondi) / m_caractere);
    return std::max(0, m_avance - std::max(enRoute, systeme));
}

void CadenceEmission::Remet(int nombre, Instant maintenant)
{
    m_libreA = std::max(m_libreA, maintenant) + Temps(nombre);
}

CadenceEmission::Duree CadenceEmission::Reste(Instant maintenant) const
{
    return m_suspendue ? m_resteSuspendu : std::max(Duree(0), m_libreA - maintenant);
}

CadenceEmission::Duree CadenceEmission::AvantRemise(Instant maintenant) const
{
    const int quart = m_avance / 4;
    return std::max(Duree(0), Reste(maintenant) - Temps(m_avance - quart));
}

void CadenceEmission::Suspend(Instant maintenant)
{
    m_resteSuspendu = Reste(maintenant);
    m_suspendue = true;
}

void CadenceEmission::Reprend(Instant maintenant)
{
    if (!m_suspendue)
        return;
    m_suspendue = false;
    m_libreA = maintenant + m_resteSuspendu;
}
