#include "comconfig/LabelChaine.h"

#include "platform/PageCode1252.h"

#include <QPainter>
#include <QTextLayout>

LabelChaine::LabelChaine(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    ReserveLignes(1);
}

void LabelChaine::MontreChaine(const QString &libelle)
{
    setText(libelle);
    setToolTip(Visible(libelle));
    setAccessibleDescription(Visible(libelle));
}

void LabelChaine::ReserveLignes(int nombre)
{
    constexpr int caracteres = 6; // "CRLF" and more of the chains in use
    setMinimumSize(caracteres * fontMetrics().maxWidth() / 2,
                   nombre * fontMetrics().lineSpacing() + 2 * (margin() + frameWidth()));
}

QString LabelChaine::Visible(const QString &libelle)
{
    constexpr char16_t suppression = 0x7F;
    constexpr char16_t imageSuppression = 0x2421;
    QString visible = ControlesVisibles(libelle);
    visible.replace(QChar(suppression), QChar(imageSuppression));
    return visible.replace(QLatin1String("&&"), QLatin1String("&"));
}

void LabelChaine::paintEvent(QPaintEvent *evenement)
{
    QFrame::paintEvent(evenement);
    QPainter peintre(this);
    peintre.setPen(palette().color(foregroundRole()));
    const QRect cadre = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const QString visible = Visible(text());
    const int pas = fontMetrics().lineSpacing();

    QTextLayout page(visible, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    page.setTextOption(option);
    page.beginLayout();
    int haut = cadre.top();
    for (QTextLine ligne = page.createLine(); ligne.isValid(); ligne = page.createLine()) {
        ligne.setLineWidth(cadre.width());
        const bool derniere = haut + 2 * pas > cadre.bottom() + 1;
        const QString morceau =
            derniere ? fontMetrics().elidedText(visible.mid(ligne.textStart()), Qt::ElideRight, cadre.width())
                     : visible.mid(ligne.textStart(), ligne.textLength());
        peintre.drawText(cadre.left(), haut + fontMetrics().ascent(), morceau);
        haut += pas;
        if (derniere)
            break;
    }
    page.endLayout();
}
