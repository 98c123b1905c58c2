#include "platform/texte/AspectVolet.h"

#include <QFontDatabase>

const QFont &PoliceOrdinaire()
{
    static const QFont ordinaire = [] {
        const QString systeme = QStringLiteral("System");
        QFont police =
            QFontDatabase::hasFamily(systeme) ? QFont(systeme) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
        police.setBold(true);
        police.setPointSizeF(9.75);
        return police;
    }();
    return ordinaire;
}

QTextCharFormat FormatDe(const AttributsRtf &attributs)
{
    QTextCharFormat format;
    if (!attributs.police.isEmpty())
        format.setFontFamilies({attributs.police});
    format.setFontPointSize(attributs.taille);
    format.setFontWeight(attributs.gras ? QFont::Bold : QFont::Normal);
    format.setFontItalic(attributs.italique);
    format.setFontUnderline(attributs.souligne);
    format.setFontStrikeOut(attributs.barre);
    if (attributs.couleur.isValid())
        format.setForeground(attributs.couleur);
    if (attributs.surlignage.isValid())
        format.setBackground(attributs.surlignage);
    return format;
}
