#include "machine/TamponRecep.h"

#include <algorithm>
#include <limits>

TamponRecep::TamponRecep(const ReglageTampon &reglage)
    : m_reglage(reglage)
    , m_processeur({reglage.Debit, 2})
{
}

bool TamponRecep::Recoit(Instant t)
{
    Avance(t);
    ++m_recus;
    if (m_xoff)
        m_suiteMax = std::max(m_suiteMax, ++m_suite);
    const bool pris = m_niveau < m_reglage.Profondeur;
    if (!pris)
        ++m_perdus;
    else if (m_niveau++ == 0)
        m_processeur.Debute(t);
    SuisArret(t);
    Avance(t);
    return pris;
}

void TamponRecep::Avance(Instant t)
{
    if (m_finArret && *m_finArret <= t)
        Reprend(*m_finArret);
    if (m_suspendu || m_niveau == 0)
        return;
    const qint64 traites = std::min<qint64>(m_niveau, m_processeur.Echus(t));
    m_processeur.Passe(traites);
    m_niveau -= int(traites);
}

void TamponRecep::SuisArret(Instant t)
{
    if (m_prochainArret == m_reglage.Arrets.size() || m_recus < m_reglage.Arrets[m_prochainArret].Apres)
        return;
    const Arret &arret = m_reglage.Arrets[m_prochainArret++];
    Retient();
    if (arret.DureeMs >= 0)
        m_finArret = t + std::chrono::milliseconds(arret.DureeMs);
}

void TamponRecep::Retient()
{
    m_suspendu = true;
    m_finArret.reset();
}

void TamponRecep::Reprend(Instant t)
{
    m_suspendu = false;
    m_finArret.reset();
    m_processeur.Debute(t);
    Avance(t);
}

std::optional<char> TamponRecep::Parole()
{
    if (!m_xoff && (m_suspendu || m_niveau >= m_reglage.MarqueHaute)) {
        m_xoff = true;
        m_suite = 0;
        ++m_xoffDits;
        return Xoff;
    }
    if (m_xoff && !m_suspendu && m_niveau <= m_reglage.MarqueBasse) {
        m_xoff = false;
        ++m_xonDits;
        return Xon;
    }
    return std::nullopt;
}

qint64 TamponRecep::JusquaMarque() const
{
    qint64 reste = std::numeric_limits<qint64>::max();
    if (!m_xoff)
        reste = m_reglage.MarqueHaute - m_niveau;
    if (m_prochainArret < m_reglage.Arrets.size())
        reste = std::min(reste, m_reglage.Arrets[m_prochainArret].Apres - m_recus);
    return std::max<qint64>(1, reste);
}

std::optional<Instant> TamponRecep::Echeance() const
{
    if (m_suspendu)
        return m_finArret;
    if (m_xoff && m_niveau > m_reglage.MarqueBasse)
        return m_processeur.Fin(m_niveau - m_reglage.MarqueBasse);
    return std::nullopt;
}
