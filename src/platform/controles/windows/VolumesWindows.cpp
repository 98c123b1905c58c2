#include "platform/controles/Volumes.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <windows.h>

#include <dbt.h>

QStringList Volumes()
{
    return {};
}

/// Windows tells each top-level window when a drive appears or disappears.
struct GuetteurVolumes::Systeme : QAbstractNativeEventFilter
{
    explicit Systeme(GuetteurVolumes *guetteur)
        : m_guetteur(guetteur)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *const recu = static_cast<const MSG *>(message);
        if (recu->message == WM_DEVICECHANGE &&
            (recu->wParam == DBT_DEVICEARRIVAL || recu->wParam == DBT_DEVICEREMOVECOMPLETE))
            Q_EMIT m_guetteur->Change();
        return false;
    }

private:
    GuetteurVolumes *const m_guetteur;
};

GuetteurVolumes::GuetteurVolumes()
    : m_systeme(std::make_unique<Systeme>(this))
{
}

GuetteurVolumes::~GuetteurVolumes() = default;
