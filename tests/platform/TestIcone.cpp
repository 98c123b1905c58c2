#include "platform/Icone.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

class TestIcone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Peinture()
    {
        const std::pair<QSize, double> cas[] = {{{16, 16}, 1}, {{128, 128}, 1}, {{24, 24}, 1.5}};
        const QTemporaryDir dossier;
        QFile fichier(dossier.filePath(QStringLiteral("icone.svg"))); // left half red, right half blue
        QVERIFY(fichier.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        fichier.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 48 48'>"
                      "<path fill='#f00' d='M0 0h24v48H0z'/><path fill='#00f' d='M24 0h24v48H24z'/></svg>");
        const QIcon icone = Icone(fichier.fileName());
        for (const auto &[taille, densite] : cas) {
            QImage ecran((QSizeF(taille) * densite).toSize(), QImage::Format_ARGB32_Premultiplied);
            ecran.setDevicePixelRatio(densite);
            ecran.fill(Qt::transparent);
            QPainter peintre(&ecran);
            icone.paint(&peintre, QRect(QPoint(), taille));
            peintre.end();
            // The border between the two halves falls between two pixels: a blurred picture would mix them.
            const int milieu = ecran.width() / 2;
            for (const int x : {0, milieu - 1, milieu, ecran.width() - 1})
                QCOMPARE(ecran.pixelColor(x, milieu), QColor(x < milieu ? Qt::red : Qt::blue));
        }
    }
};

QTEST_MAIN(TestIcone)
#include "TestIcone.moc"
