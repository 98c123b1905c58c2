#include "machine/Cadence.h"

#include <algorithm>

namespace {
constexpr qint64 DemiSeconde = 500'000'000; // nanoseconds: half bits x this / bits per second = time of a character
constexpr qint64 LotSansDelai = 4096;
} // namespace

Cadence::Cadence(const ReglageLigne &ligne)
    : m_ligne(ligne)
{
}

Duree Cadence::Temps(qint64 nombre) const
{
    if (SansDelai())
        return Duree::zero();
    return Duree((nombre * m_ligne.DemiBits * DemiSeconde + m_ligne.Vitesse - 1) / m_ligne.Vitesse);
}

void Cadence::Debute(Instant t)
{
    m_origine = std::max(t, Fin(0));
    m_passes = 0;
}

qint64 Cadence::Echus(Instant t) const
{
    if (t < m_origine)
        return 0;
    if (SansDelai())
        return LotSansDelai;
    return (t - m_origine).count() * m_ligne.Vitesse / (m_ligne.DemiBits * DemiSeconde) - m_passes;
}

qint64 Cadence::Lot() const
{
    if (SansDelai())
        return LotSansDelai;
    return std::max<qint64>(1, m_ligne.Vitesse * 2 / (m_ligne.DemiBits * 1000));
}
