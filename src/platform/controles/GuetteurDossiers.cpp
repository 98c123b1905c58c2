#include "platform/controles/GuetteurDossiers.h"

#include <QScopeGuard>
#include <QSignalBlocker>

GuetteurDossiers::GuetteurDossiers()
{
    using namespace std::chrono_literals;
    m_delai.setSingleShot(true);
    m_delai.setInterval(100ms);
    connect(this, &QFileSystemWatcher::directoryChanged, this, &GuetteurDossiers::Annonce);
    connect(&m_volumes, &GuetteurVolumes::Change, this, &GuetteurDossiers::ReprendGarde);
    connect(&m_delai, &QTimer::timeout, this, &GuetteurDossiers::Change);
}

void GuetteurDossiers::Suspend(const std::function<void()> &travail)
{
    const QSignalBlocker sourd(this);
    const QStringList dossiers = directories();
    if (!dossiers.isEmpty())
        removePaths(dossiers);
    const auto reprise = qScopeGuard([&] {
        if (!dossiers.isEmpty())
            addPaths(dossiers);
    });
    travail();
}

/// Sets every watch again. When a volume is mounted on a watched folder, the old watch stays on the folder below it.
void GuetteurDossiers::ReprendGarde()
{
    if (const QStringList dossiers = directories(); !dossiers.isEmpty()) {
        removePaths(dossiers);
        addPaths(dossiers);
    }
    Annonce();
}

void GuetteurDossiers::Annonce()
{
    if (!m_delai.isActive())
        m_delai.start();
}
