#include "platform/base/FinDemandee.h"

#include <QApplication>
#include <QSessionManager>

// A graphic program has no terminal. When the user logs off or shuts the PC down, Windows asks each window whether the
// session may end. Qt then emits commitDataRequest.

namespace {

/// Closes all windows, as the operator does, so that the program asks what it asks then. Behind an open dialog nothing
/// can be asked.
void Ferme(QSessionManager &session)
{
    if (QGuiApplication::modalWindow() == nullptr && session.allowsInteraction())
        QApplication::closeAllWindows();
}

} // namespace

struct FinDemandee::Systeme
{
    QObject contexte;
};

FinDemandee::FinDemandee(std::function<void()> avant)
    : m_systeme(std::make_unique<Systeme>())
{
    const auto demande = [avant = std::move(avant)](QSessionManager &session) {
        avant(); // first: Windows may end the process while the operator is asked
        Ferme(session);
    };
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_systeme->contexte, demande, Qt::DirectConnection);
}

FinDemandee::~FinDemandee() = default;
