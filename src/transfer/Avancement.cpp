#include "transfer/Avancement.h"

#include "locale/Langue.h"

#include <algorithm>

namespace {

constexpr qint64 PasAffichage = 200;  // milliseconds between two repaints
constexpr qint64 PremierTemps = 1000; // milliseconds before the pace tells anything
constexpr int Pleine = 1000;

constexpr Texte3 Reste{u"%1  -  reste %2", u"%1  -  %2 left", u"%1  -  faltan %2"};

} // namespace

Avancement::Avancement(QProgressBar &barre, qint64 total)
    : m_barre(barre)
    , m_total(total)
{
    m_barre.setRange(0, Pleine);
    m_barre.setValue(0);
    m_barre.setFormat(QStringLiteral("0 %"));
    m_barre.setVisible(total > 0);
    m_depuis.start();
}

Avancement::~Avancement()
{
    m_barre.setFormat(EnPourCent());
}

QString Avancement::EnPourCent() const
{
    return QStringLiteral("%1 %").arg(m_total == 0 ? 0 : m_faits * 100 / m_total);
}

void Avancement::Montre(qint64 faits)
{
    faits = std::clamp<qint64>(faits, 0, m_total);
    m_faits = faits;
    const qint64 maintenant = m_depuis.elapsed();
    const bool complet = faits == m_total;
    if (m_total == 0 || (m_dernierAffichage >= 0 && maintenant - m_dernierAffichage < PasAffichage && !complet))
        return;
    m_dernierAffichage = maintenant;
    m_barre.setValue(static_cast<int>(faits * Pleine / m_total));
    m_barre.setFormat(complet || faits == 0 || maintenant < PremierTemps
                          ? EnPourCent()
                          : Texte(Reste).arg(EnPourCent(), TempsRestant()));
}

QString Avancement::TempsRestant() const
{
    const qint64 secondes = m_depuis.elapsed() * (m_total - m_faits) / m_faits / 1000 + 1;
    return QStringLiteral("%1:%2").arg(secondes / 60).arg(secondes % 60, 2, 10, QLatin1Char('0'));
}
