#include "platform/base/CedeLaMain.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class TestCedeLaMain : public QObject
{
    Q_OBJECT

    void Poste(const std::function<void()> &action) { QMetaObject::invokeMethod(this, action, Qt::QueuedConnection); }

private Q_SLOTS:
    // All that is due, and what that begets; a timer that always is leaves the caller his turn all the same.
    void repartitTout()
    {
        QTimer minuteur;
        const QSignalSpy coups(&minuteur, &QTimer::timeout);
        minuteur.start(0);
        int traites = 0;
        Poste([&] { Poste([&] { ++traites; }); });
        CedeLaMain();
        QCOMPARE(traites, 1);
        QVERIFY(!coups.isEmpty());
    }

    void dortSansMouvement()
    {
        CedeLaMain(); // what the test's own start left behind
        const QSignalSpy sommeils(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock);
        CedeLaMain(); // comes back though nothing ever happens
        QCOMPARE(sommeils.size(), 1);
        SignaleMouvement();
        CedeLaMain();
        Poste([] {});
        CedeLaMain();
        QCOMPARE(sommeils.size(), 1);
        CedeLaMain();
        QCOMPARE(sommeils.size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestCedeLaMain)
#include "TestCedeLaMain.moc"
