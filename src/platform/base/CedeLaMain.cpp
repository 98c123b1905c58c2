#include "platform/base/CedeLaMain.h"

#include "platform/base/Sommeil.h"

#include <QAbstractEventDispatcher>

namespace {

constexpr std::chrono::milliseconds SommeilMax{5};
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

} // namespace

void CedeLaMain()
{
    QAbstractEventDispatcher *repartiteur = QAbstractEventDispatcher::instance();
    if (repartiteur == nullptr)
        return;
    const bool traite = TraiteEvenements(*repartiteur);
    if (!traite && !mouvement)
        Sommeille(*repartiteur, SommeilMax);
    mouvement = false;
}

void SignaleMouvement()
{
    mouvement = true;
}
