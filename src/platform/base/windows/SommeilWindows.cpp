#include "platform/base/Sommeil.h"

#include <QAbstractEventDispatcher>

#include <windows.h>

/// A short timer of Qt is a multimedia timer here, which costs several times the processor of this wait.
void Sommeille(QAbstractEventDispatcher &repartiteur, std::chrono::milliseconds auPlus)
{
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(auPlus.count()), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    repartiteur.processEvents(QEventLoop::AllEvents);
}
