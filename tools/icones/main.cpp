// icones FILE.svg FOLDER SIZE...: draws the icon into FOLDER/SIZE.png for each size in pixels.

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int nombre, char *arguments[])
{
    if (nombre < 4)
        return 2;
    QSvgRenderer dessin(QString::fromLocal8Bit(arguments[1]));
    const QString dossier = QString::fromLocal8Bit(arguments[2]);
    QDir().mkpath(dossier);
    for (int i = 3; i < nombre; ++i) {
        const QByteArray cote(arguments[i]);
        QImage image(cote.toInt(), cote.toInt(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        dessin.render(&peintre);
        peintre.end();
        if (!dessin.isValid() || !image.save(QStringLiteral("%1/%2.png").arg(dossier, QLatin1String(cote)))) {
            std::fprintf(stderr, "icones: %s in size %s cannot be drawn\n", arguments[1], arguments[i]);
            return 1;
        }
    }
    return 0;
}
