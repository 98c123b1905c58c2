#include "machine/EmissionMachine.h"

#include <algorithm>

EmissionMachine::EmissionMachine(const Envoi &envoi, const QByteArray &debut, const QByteArray &fin,
                                 const ReglageLigne &ligne, Instant t)
    : m_flot(envoi.Salve ? envoi.Texte : debut + envoi.Texte + (envoi.SansFin ? QByteArray() : fin))
    , m_finLigne(envoi.FinLigne)
    , m_morceau(envoi.Morceau)
    , m_pause(envoi.PauseLigneMs)
    , m_cadence(ligne)
{
    if (envoi.CoupeApres >= 0)
        m_flot.truncate(envoi.CoupeApres);
    m_cadence.Debute(t);
    m_finTroncon = FinTroncon();
}

QByteArray EmissionMachine::Echu(Instant t) const
{
    if (m_retenu)
        return {};
    return m_flot.mid(m_position, std::min<qint64>(m_cadence.Echus(t), m_finTroncon - m_position));
}

void EmissionMachine::Parti(qint64 nombre)
{
    m_position += nombre;
    m_cadence.Passe(nombre);
    if (m_position < m_finTroncon || Finie())
        return;
    m_cadence.Debute(m_cadence.Fin(0) + m_pause);
    m_finTroncon = FinTroncon();
}

void EmissionMachine::Retient(bool retenu, Instant t)
{
    if (m_retenu && !retenu)
        m_cadence.Debute(t);
    m_retenu = retenu;
}

std::optional<Instant> EmissionMachine::Echeance() const
{
    if (m_retenu || Finie())
        return std::nullopt;
    return m_cadence.Fin(std::min<qint64>(m_cadence.Lot(), m_finTroncon - m_position));
}

qsizetype EmissionMachine::FinTroncon() const
{
    if (m_pause.count() > 0 && m_morceau > 0)
        return std::min(m_position + m_morceau, m_flot.size());
    const qsizetype fin = m_pause.count() == 0 ? -1 : m_flot.indexOf(m_finLigne, m_position);
    return fin < 0 ? m_flot.size() : fin + m_finLigne.size();
}
