#include "transfer/Avancement.h"

#include "locale/Langue.h"
#include "transfer/VueTransfert.h"

#include <algorithm>

namespace {

constexpr qint64 PasAffichage = 200;  // milliseconds between two repaints
constexpr qint64 PremierTemps = 1000; // milliseconds; before that the pace says too little about the time left
constexpr qint64 Patience = 3000;     // milliseconds without a character, many times the time of one at any speed
constexpr int Pleine = 1000;          // the full bar

constexpr Texte3 Reste{u"%1  -  reste %2", u"%1  -  %2 left", u"%1  -  faltan %2"};
constexpr Texte3 Attend{u"%1  -  en attente de la machine", u"%1  -  waiting for the machine",
                        u"%1  -  esperando a la máquina"};

} // namespace

Avancement::Avancement(VueTransfert &vue, qint64 total)
    : m_vue(vue)
    , m_total(total)
{
    Affiche(EnPourCent());
    m_depuis.start();
}

Avancement::~Avancement()
{
    Affiche(EnPourCent());
}

void Avancement::Affiche(const QString &texte)
{
    if (m_total > 0)
        m_vue.Progression(m_place, Pleine, texte);
    else
        m_vue.CacheProgression();
}

QString Avancement::EnPourCent() const
{
    return QStringLiteral("%1 %").arg(m_total == 0 ? 0 : m_faits * 100 / m_total);
}

void Avancement::Montre(qint64 faits)
{
    faits = std::clamp(faits, m_faits, m_total);
    const qint64 maintenant = m_depuis.elapsed();
    const bool fini = faits == m_total && m_faits != m_total;
    if (faits != m_faits)
        m_progres = maintenant;
    m_faits = faits;
    if (m_total == 0 || (m_dernierAffichage >= 0 && maintenant - m_dernierAffichage < PasAffichage && !fini))
        return;
    m_dernierAffichage = maintenant;
    m_place = static_cast<int>(faits * Pleine / m_total);
    Affiche(Dit(maintenant));
}

QString Avancement::Dit(qint64 maintenant) const
{
    if (maintenant - m_progres >= Patience)
        return Texte(Attend).arg(EnPourCent());
    const bool sansReste = m_faits == m_total || m_faits == 0 || maintenant < PremierTemps;
    return sansReste ? EnPourCent() : Texte(Reste).arg(EnPourCent(), TempsRestant());
}

QString Avancement::TempsRestant() const
{
    const qint64 secondes = m_depuis.elapsed() * (m_total - m_faits) / m_faits / 1000 + 1;
    return QStringLiteral("%1:%2").arg(secondes / 60).arg(secondes % 60, 2, 10, QLatin1Char('0'));
}
