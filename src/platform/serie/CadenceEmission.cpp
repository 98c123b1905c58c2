#include "platform/serie/CadenceEmission.h"

#include <algorithm>

void CadenceEmission::Regle(int vitesse, double bitsParCaractere)
{
    m_caractere = Duree(qRound64(bitsParCaractere * 1e9 / vitesse));
    m_avance.Regle(m_caractere);
    m_enSuite = false;
}

int CadenceEmission::Place(Instant maintenant, int systeme) const
{
    if (m_suspendue)
        return 0;
    const Duree arrondi = m_caractere - Duree(1);
    const int enRoute = static_cast<int>((Reste(maintenant) + arrondi) / m_caractere);
    return std::max(0, Avance() - std::max(enRoute, systeme));
}

void CadenceEmission::Remet(int nombre, Instant maintenant)
{
    if (nombre == 0)
        return;
    m_avance.Note(maintenant, m_enSuite ? std::max(Duree(0), maintenant - m_libreA) : Duree(0));
    m_enSuite = true;
    m_libreA = std::max(m_libreA, maintenant) + Temps(nombre);
}

CadenceEmission::Duree CadenceEmission::Reste(Instant maintenant) const
{
    return m_suspendue ? m_resteSuspendu : std::max(Duree(0), m_libreA - maintenant);
}

CadenceEmission::Duree CadenceEmission::AvantRemise(Instant maintenant) const
{
    const int part = std::max(1, Avance() / 4);
    return std::max(Duree(0), Reste(maintenant) - Temps(Avance() - part));
}

void CadenceEmission::Suspend(Instant maintenant)
{
    m_resteSuspendu = Reste(maintenant);
    m_suspendue = true;
    Empeche();
}

void CadenceEmission::Reprend(Instant maintenant)
{
    if (!m_suspendue)
        return;
    m_suspendue = false;
    m_libreA = maintenant + m_resteSuspendu;
}
