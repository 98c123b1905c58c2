#include "platform/base/Sommeil.h"

#include <QAbstractEventDispatcher>
#include <QTimer>

void Sommeille(QAbstractEventDispatcher &repartiteur, std::chrono::milliseconds auPlus)
{
    QTimer reveil;
    reveil.setTimerType(Qt::PreciseTimer);
    reveil.setSingleShot(true);
    reveil.start(auPlus);
    repartiteur.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}
