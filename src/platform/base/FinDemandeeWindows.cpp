#include "platform/base/FinDemandee.h"

#include <QGuiApplication>

// A graphic program has no terminal. When the user logs off or shuts the PC down, Windows asks each window whether the
// session may end. Qt then emits commitDataRequest.

struct FinDemandee::Systeme
{
    QObject contexte;
};

FinDemandee::FinDemandee(std::function<void()> avant)
    : m_systeme(std::make_unique<Systeme>())
{
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_systeme->contexte, std::move(avant),
                     Qt::DirectConnection);
}

FinDemandee::~FinDemandee() = default;
