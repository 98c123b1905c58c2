#include "endurance/Ressources.h"

#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTextDocument>
#include <QWidget>

#include <atomic>
#include <malloc.h>
#include <unistd.h>

// The toolkit's table of hooks for debugging tools. No public header declares it.
extern Q_DECL_IMPORT quintptr qtHookData[];

namespace {

constexpr int Naissance = 3; // index of the hook for new objects
constexpr int Mort = 4;

std::atomic<int> objets = 0; // some live in other threads

} // namespace

void CompteObjets()
{
    qtHookData[Naissance] = reinterpret_cast<quintptr>(+[](QObject *) { ++objets; });
    qtHookData[Mort] = reinterpret_cast<quintptr>(+[](QObject *) { --objets; });
}

qint64 Tas()
{
    const auto tas = mallinfo2();
    return static_cast<qint64>(tas.uordblks + tas.hblkhd) / 1024;
}

qint64 Pages()
{
    QFile pages(QStringLiteral("/proc/self/statm"));
    if (!pages.open(QIODevice::ReadOnly))
        return 0;
    return pages.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

Ressources CompteRessources()
{
    // Deferred work of a transfer (single-shot timers above all) is over after this time.
    constexpr int repos = 500; // milliseconds
    QElapsedTimer depuis;
    depuis.start();
    while (depuis.elapsed() < repos) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    frmPrinc->Text1->document()->rootFrame(); // the toolkit makes it when it is first asked for
    const auto descripteurs =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    return {int(descripteurs), objets, int(QApplication::topLevelWidgets().size())};
}
