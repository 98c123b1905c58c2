#include "platform/base/CedeLaMain.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

namespace {

constexpr int SommeilMax = 5; // ms
// Turns of the event loop in one call at most: events that keep raising new events must not hold the caller for ever.
constexpr int ToursMax = 16;

bool mouvement = false;

bool TraiteEvenements(QAbstractEventDispatcher &repartiteur)
{
    int tours = 0;
    while (tours < ToursMax && repartiteur.processEvents(QEventLoop::AllEvents))
        ++tours;
    return tours > 0;
}

void Dort(QAbstractEventDispatcher &repartiteur)
{
    QTimer reveil;
    reveil.setTimerType(Qt::PreciseTimer);
    reveil.setSingleShot(true);
    reveil.start(SommeilMax);
    repartiteur.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

} // namespace

void CedeLaMain()
{
    QAbstractEventDispatcher *repartiteur = QAbstractEventDispatcher::instance();
    if (repartiteur == nullptr)
        return;
    const bool traite = TraiteEvenements(*repartiteur);
    if (!traite && !mouvement)
        Dort(*repartiteur);
    mouvement = false;
}

void SignaleMouvement()
{
    mouvement = true;
}
