#include "comconfig/LabelChaine.h"

#include "platform/base/PageCode1252.h"

#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

#include <utility>

namespace {

/// Breaks texte into lines of at most largeur pixels. Each line is given as its start in texte and its length.
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

/// texte as a tool tip. In one line a long chain would not fit on the screen.
QString Bulle(const QString &texte)
{
    constexpr int largeur = 600;                  // pixels
    const bool html = Qt::mightBeRichText(texte); // it would take names such as <EM> and <SUB> for tags
    QStringList lignes;
    for (const auto &[debut, longueur] : Lignes(texte, QToolTip::font(), largeur)) {
        const QString ligne = texte.mid(debut, longueur);
        lignes << (html ? ligne.toHtmlEscaped() : ligne);
    }
    return lignes.join(html ? QStringLiteral("<br>") : QStringLiteral("\n"));
}

/// libelle with each run of "&" as long as in the chain: the button of "&" adds two to the label for one character, the
/// free character adds one. When the chain has no "&" the label is a caption, and two stand for one.
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
    setToolTip(Bulle(m_visible));
    setAccessibleDescription(m_visible);
    update(); // the chain may have changed under the same label
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

/// Does not depend on the chain's length, so that the window keeps its size.
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
