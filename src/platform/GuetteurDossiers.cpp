#include "platform/GuetteurDossiers.h"

GuetteurDossiers::GuetteurDossiers()
{
    using namespace std::chrono_literals;
    m_delai.setSingleShot(true);
    m_delai.setInterval(100ms);
    connect(this, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_delai.isActive())
            m_delai.start();
    });
    connect(&m_delai, &QTimer::timeout, this, &GuetteurDossiers::Change);
}
