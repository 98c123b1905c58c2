#include "comconfig/LabelChaine.h"

#include "platform/base/PageCode1252.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextLayout>

#include <utility>

namespace {

/// The lines, each as its place in texte and its length, into which a width cuts it.
QList<std::pair<int, int>> Lignes(const QString &texte, const QFont &police, int largeur)
{
    QTextLayout page(texte, police);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    page.setTextOption(option);
    QList<std::pair<int, int>> lignes;
    page.beginLayout();
    for (QTextLine ligne = page.createLine(); ligne.isValid(); ligne = page.createLine()) {
        ligne.setLineWidth(largeur);
        lignes.append({ligne.textStart(), ligne.textLength()});
    }
    page.endLayout();
    return lignes;
}

/// libelle with as many "&" one behind the other as the chain has there: its button adds two for one, the free
/// character one. A label whose chain has none is a caption, in which two stand for one.
QString EsperluettesVraies(const QString &libelle, const QString &caracteres)
{
    static const QRegularExpression suite(QStringLiteral("&+"));
    auto vraies = suite.globalMatch(caracteres);
    QString visible;
    qsizetype fin = 0;
    for (auto ecrites = suite.globalMatch(libelle); ecrites.hasNext();) {
        const QRegularExpressionMatch ecrite = ecrites.next();
        const qsizetype nombre = vraies.hasNext() ? vraies.next().capturedLength() : (ecrite.capturedLength() + 1) / 2;
        visible += libelle.mid(fin, ecrite.capturedStart() - fin) + QString(nombre, u'&');
        fin = ecrite.capturedEnd();
    }
    return visible + libelle.mid(fin);
}

} // namespace

LabelChaine::LabelChaine(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void LabelChaine::MontreChaine(const QString &libelle, const QString &caracteres)
{
    m_visible = ControlesVisibles(EsperluettesVraies(libelle, caracteres));
    setText(libelle);
    // A tool tip would take names such as <EM> and <SUB> for tags.
    setToolTip(Qt::mightBeRichText(m_visible) ? m_visible.toHtmlEscaped() : m_visible);
    setAccessibleDescription(m_visible);
    update(); // the same label may stand for another chain
}

void LabelChaine::ReserveLignes(int nombre)
{
    m_lignes = nombre;
    updateGeometry();
}

QSize LabelChaine::sizeHint() const
{
    return minimumSizeHint();
}

/// The length of a chain does not count: the window that shows it keeps its size.
QSize LabelChaine::minimumSizeHint() const
{
    const int bords = 2 * (margin() + frameWidth());
    return {fontMetrics().horizontalAdvance(QStringLiteral("CRCRLF")) + bords,
            m_lignes * fontMetrics().lineSpacing() + bords};
}

void LabelChaine::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    drawFrame(&peintre);
    const QRect cadre = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const auto lignes = Lignes(m_visible, font(), cadre.width());
    const int pas = fontMetrics().lineSpacing();
    const int tiennent = qMax(1, cadre.height() / pas);
    const int montrees = qMin(tiennent, static_cast<int>(lignes.size()));
    int haut = cadre.top();
    if (alignment() & Qt::AlignVCenter)
        haut += qMax(0, cadre.height() - montrees * pas) / 2;

    peintre.setPen(palette().color(foregroundRole()));
    for (int i = 0; i < montrees; ++i, haut += pas) {
        const auto &[debut, longueur] = lignes[i];
        const bool coupe = i + 1 == montrees && montrees < lignes.size();
        peintre.drawText(cadre.left(), haut + fontMetrics().ascent(),
                         coupe ? fontMetrics().elidedText(m_visible.mid(debut), Qt::ElideRight, cadre.width())
                               : m_visible.mid(debut, longueur));
    }
}
