#include "platform/CedeLaMain.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class TestCedeLaMain : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void repartitTout();
    void dortSansMouvement();
    void gestionnaireQuiCede();
    void avalancheBornee();

private:
    template <typename Action>
    void Poste(Action action)
    {
        QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
    }
};

void TestCedeLaMain::repartitTout()
{
    QStringList traites;
    Poste([&] {
        traites << QStringLiteral("posted");
        Poste([&] { traites << QStringLiteral("posted by the first"); });
    });
    QTimer::singleShot(0, this, [&] { traites << QStringLiteral("timer"); });
    CedeLaMain();
    QCOMPARE(traites.size(), 3);
}

void TestCedeLaMain::dortSansMouvement()
{
    CedeLaMain(); // what the test's own start left behind
    const QSignalSpy sommeils(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock);
    CedeLaMain(); // comes back though nothing ever happens
    QCOMPARE(sommeils.size(), 1);
    SignaleMouvement();
    CedeLaMain();
    QCOMPARE(sommeils.size(), 1);
    Poste([] {});
    CedeLaMain();
    QCOMPARE(sommeils.size(), 1);
    CedeLaMain();
    QCOMPARE(sommeils.size(), 2);
}

void TestCedeLaMain::gestionnaireQuiCede()
{
    QStringList ordre;
    Poste([&] {
        ordre << QStringLiteral("outer begins");
        Poste([&] { ordre << QStringLiteral("inner"); });
        CedeLaMain();
        ordre << QStringLiteral("outer ends");
    });
    CedeLaMain();
    QCOMPARE(ordre.join(QLatin1String(", ")), QStringLiteral("outer begins, inner, outer ends"));
}

// An event that always begets the next leaves the caller his turn all the same.
void TestCedeLaMain::avalancheBornee()
{
    int traites = 0;
    QTimer minuteur;
    connect(&minuteur, &QTimer::timeout, this, [&] { ++traites; });
    minuteur.start(0);
    CedeLaMain();
    QVERIFY(traites > 0);
}

QTEST_GUILESS_MAIN(TestCedeLaMain)
#include "TestCedeLaMain.moc"
