#include "platform/Icone.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A drawing whose left half is red and whose right half has the colour given.
QByteArray Moities(const char *droite)
{
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>"
                      "<path fill='#ff0000' d='M0 0h24v48H0z'/><path fill='") +
           droite + "' d='M24 0h24v48H24z'/></svg>";
}

} // namespace

class TestIcone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dossier.isValid()); }
    void Peinture_data();
    void Peinture();
    void LueALaPremierePeinture();
    void Grisee();
    void SansDessin();

private:
    QString Pose(const char *nom, const QByteArray &contenu) const
    {
        QFile fichier(m_dossier.filePath(QLatin1String(nom)));
        return fichier.open(QIODevice::WriteOnly) && fichier.write(contenu) == contenu.size() ? fichier.fileName()
                                                                                              : QString();
    }

    QTemporaryDir m_dossier;
};

void TestIcone::Peinture_data()
{
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<double>("densite");
    QTest::addColumn<QRect>("dessin"); // where the drawing lies, in pixels of the screen
    QTest::newRow("toolbar") << QSize(24, 24) << 1.0 << QRect(0, 0, 24, 24);
    QTest::newRow("small") << QSize(16, 16) << 1.0 << QRect(0, 0, 16, 16);
    QTest::newRow("larger than drawn") << QSize(128, 128) << 1.0 << QRect(0, 0, 128, 128);
    QTest::newRow("dense screen") << QSize(24, 24) << 2.0 << QRect(0, 0, 48, 48);
    QTest::newRow("screen at 150 %") << QSize(24, 24) << 1.5 << QRect(0, 0, 36, 36);
    QTest::newRow("wide place") << QSize(64, 32) << 1.0 << QRect(16, 0, 32, 32);
}

void TestIcone::Peinture()
{
    QFETCH(QSize, taille);
    QFETCH(double, densite);
    QFETCH(QRect, dessin);
    const QIcon icone = Icone(Pose("peinture.svg", Moities("#0000ff")));
    QImage ecran((QSizeF(taille) * densite).toSize(), QImage::Format_ARGB32_Premultiplied);
    ecran.setDevicePixelRatio(densite);
    ecran.fill(Qt::transparent);
    QPainter peintre(&ecran);
    icone.paint(&peintre, QRect(QPoint(), taille));
    peintre.end();
    // The border between the two halves falls between two pixels: a blurred picture would mix them.
    const int y = dessin.center().y();
    const int milieu = dessin.x() + dessin.width() / 2;
    QCOMPARE(ecran.pixelColor(dessin.left(), y), QColor(Qt::red));
    QCOMPARE(ecran.pixelColor(milieu - 1, y), QColor(Qt::red));
    QCOMPARE(ecran.pixelColor(milieu, y), QColor(Qt::blue));
    QCOMPARE(ecran.pixelColor(dessin.right(), y), QColor(Qt::blue));
    if (dessin.left() > 0)
        QCOMPARE(ecran.pixelColor(dessin.left() - 1, y).alpha(), 0);
}

void TestIcone::LueALaPremierePeinture()
{
    const QString chemin = Pose("tardive.svg", Moities("#0000ff"));
    const QIcon icone = Icone(chemin);
    Pose("tardive.svg", Moities("#00ff00"));
    QCOMPARE(icone.pixmap(20).toImage().pixelColor(19, 10), QColor(Qt::green));
    QVERIFY(QFile::remove(chemin));
    QCOMPARE(icone.pixmap(32).toImage().pixelColor(31, 16), QColor(Qt::green));
}

void TestIcone::Grisee()
{
    const QIcon icone = Icone(Pose("grisee.svg", Moities("#0000ff")));
    QCOMPARE(icone.pixmap(24, QIcon::Normal).toImage().pixelColor(2, 12), QColor(Qt::red));
    const QColor grise = icone.pixmap(24, QIcon::Disabled).toImage().pixelColor(2, 12);
    QVERIFY2(grise.saturation() < 40, qPrintable(grise.name()));
    QVERIFY(grise.alpha() > 0);
    QCOMPARE(icone.pixmap(24, QIcon::Normal).toImage().pixelColor(2, 12), QColor(Qt::red));
}

void TestIcone::SansDessin()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot open file")));
    const QImage image = Icone(m_dossier.filePath(QStringLiteral("absente.svg"))).pixmap(24).toImage();
    QCOMPARE(image.size(), QSize(24, 24));
    QCOMPARE(image.pixelColor(12, 12).alpha(), 0);
    QVERIFY(Icone(Pose("vide.svg", Moities("#0000ff"))).pixmap(QSize(0, 0)).isNull());
}

QTEST_MAIN(TestIcone)
#include "TestIcone.moc"
