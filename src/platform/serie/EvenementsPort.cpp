#include "platform/serie/EvenementsPort.h"

#include <QPointer>

void EvenementsPort::Annonce(int code)
{
    if (!m_attente.contains(code))
        m_attente.append(code);
    Programme();
}

void EvenementsPort::Relache()
{
    --m_retenues;
    Programme();
}

void EvenementsPort::Programme()
{
    if (m_programme || m_retenues > 0 || Prochain() < 0)
        return;
    m_programme = QMetaObject::invokeMethod(this, &EvenementsPort::Distribue, Qt::QueuedConnection);
}

/// Position of the first code that may be delivered now, -1 for none.
qsizetype EvenementsPort::Prochain() const
{
    for (qsizetype i = 0; i < m_attente.size(); ++i) {
        if (!m_enCours.contains(m_attente.at(i)))
            return i;
    }
    return -1;
}

void EvenementsPort::Distribue()
{
    m_programme = false;
    const qsizetype position = m_retenues > 0 ? -1 : Prochain();
    if (position < 0)
        return;
    m_enCours.append(m_attente.takeAt(position));
    Programme(); // a yield of the handler takes the next one from here

    const QPointer<EvenementsPort> present(this);
    Q_EMIT Evenement();
    if (!present)
        return;
    m_enCours.removeLast();
    Programme();
}
