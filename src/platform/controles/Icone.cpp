#include "platform/controles/Icone.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

#include <memory>

namespace {

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
    QPixmap Trace(const QSize &taille);

    QString m_chemin;
    std::shared_ptr<QSvgRenderer> m_rendu; // null before the first painting
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
    image = Trace(taille);
    if (mode != QIcon::Normal)
        image = QApplication::style()->generatedIconPixmap(mode, image, &option);
    QPixmapCache::insert(cle, image);
    return image;
}

QPixmap Dessin::Trace(const QSize &taille)
{
    if (m_rendu == nullptr) {
        m_rendu = std::make_shared<QSvgRenderer>(m_chemin);
        m_rendu->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    QPixmap image(taille);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    m_rendu->render(&peintre);
    return image;
}

} // namespace

QIcon Icone(const QString &chemin)
{
    return QIcon(new Dessin(chemin));
}
