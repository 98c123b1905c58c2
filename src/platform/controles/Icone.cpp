#include "platform/controles/Icone.h"

#include <QApplication>
#include <QDirIterator>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

/// Of the pictures in a folder, in pixels, rising: their files are named by it.
QList<int> Hauteurs(const QString &dossier)
{
    QList<int> hauteurs;
    for (QDirIterator images(dossier); images.hasNext();)
        hauteurs << images.nextFileInfo().baseName().toInt();
    std::sort(hauteurs.begin(), hauteurs.end());
    return hauteurs;
}

class Dessin : public QIconEngine
{
public:
    explicit Dessin(const QString &chemin)
        : m_chemin(chemin)
    {
    }

    void paint(QPainter *peintre, const QRect &cadre, QIcon::Mode mode, QIcon::State etat) override;
    QPixmap pixmap(const QSize &taille, QIcon::Mode mode, QIcon::State etat) override;
    QIconEngine *clone() const override { return new Dessin(*this); }

private:
    QPixmap Lit(const QSize &taille) const;

    QString m_chemin;
};

void Dessin::paint(QPainter *peintre, const QRect &cadre, QIcon::Mode mode, QIcon::State etat)
{
    const double densite = peintre->device()->devicePixelRatioF();
    peintre->drawPixmap(cadre, pixmap((QSizeF(cadre.size()) * densite).toSize(), mode, etat));
}

QPixmap Dessin::pixmap(const QSize &taille, QIcon::Mode mode, QIcon::State)
{
    if (taille.isEmpty())
        return {};
    QStyleOption option;
    option.palette = QApplication::palette();
    const QString cle = QStringLiteral("%1 %2x%3 %4 %5")
                            .arg(m_chemin)
                            .arg(taille.width())
                            .arg(taille.height())
                            .arg(mode)
                            .arg(option.palette.cacheKey());
    QPixmap image;
    if (QPixmapCache::find(cle, &image))
        return image;
    image = Lit(taille);
    if (mode != QIcon::Normal)
        image = QApplication::style()->generatedIconPixmap(mode, image, &option);
    QPixmapCache::insert(cle, image);
    return image;
}

/// The picture of the height asked for, or the next larger one scaled down, in the middle of the size asked for.
QPixmap Dessin::Lit(const QSize &taille) const
{
    const QList<int> hauteurs = Hauteurs(m_chemin);
    const auto assez = std::lower_bound(hauteurs.begin(), hauteurs.end(), taille.height());
    QPixmap image(taille);
    image.fill(Qt::transparent);
    if (hauteurs.isEmpty())
        return image;
    QImage lue(QStringLiteral("%1/%2.png").arg(m_chemin).arg(assez == hauteurs.end() ? hauteurs.last() : *assez),
               "PNG");
    if (lue.width() > taille.width() || lue.height() != taille.height())
        lue = lue.scaled(taille, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter(&image).drawImage((taille.width() - lue.width()) / 2, (taille.height() - lue.height()) / 2, lue);
    return image;
}

} // namespace

QIcon Icone(const QString &chemin)
{
    return QIcon(new Dessin(chemin));
}
