#include "platform/serie/FileEvenements.h"

#include <QPointer>

void FileEvenements::Annonce(int code)
{
    if (!m_attente.contains(code))
        m_attente.append(code);
    ArmeDistribution();
}

void FileEvenements::Relache()
{
    --m_retenues;
    ArmeDistribution();
}

void FileEvenements::ArmeDistribution()
{
    if (m_distributionArmee || m_retenues > 0 || Prochain() < 0)
        return;
    m_distributionArmee = QMetaObject::invokeMethod(this, &FileEvenements::Distribue, Qt::QueuedConnection);
}

/// Position of the first code that may be delivered now, -1 for none.
qsizetype FileEvenements::Prochain() const
{
    for (qsizetype i = 0; i < m_attente.size(); ++i) {
        if (!m_enCours.contains(m_attente.at(i)))
            return i;
    }
    return -1;
}

void FileEvenements::Distribue()
{
    m_distributionArmee = false;
    const qsizetype position = m_retenues > 0 ? -1 : Prochain();
    if (position < 0)
        return;
    m_enCours.append(m_attente.takeAt(position));
    ArmeDistribution(); // so that the next event is delivered when the handler yields

    const QPointer<FileEvenements> present(this);
    Q_EMIT Evenement();
    if (!present)
        return;
    m_enCours.removeLast();
    ArmeDistribution();
}
