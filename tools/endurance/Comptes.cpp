#include "endurance/Comptes.h"

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

// The toolkit's table of hooks for tools that watch a program; it stands in none of its public headers.
extern Q_DECL_IMPORT quintptr qtHookData[];

namespace {

constexpr int Naissance = 3; // places in that table
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

Comptes Compte()
{
    // What a transfer leaves for later, timers that fire once above all, is over by then.
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
