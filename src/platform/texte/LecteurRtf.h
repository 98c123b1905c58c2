#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>

/// The look of a stretch of rich text.
struct AttributsRtf
{
    QString police;     ///< name of the font; empty when the file names none
    double taille = 12; ///< points
    bool gras = false;
    bool italique = false;
    bool souligne = false;
    bool barre = false;
    QColor couleur;    ///< invalid: the reader's own text colour
    QColor surlignage; ///< invalid: none

    bool operator==(const AttributsRtf &) const = default;
};

/// A stretch of text with one look. Paragraphs and forced line breaks end in CR LF.
struct MorceauRtf
{
    QString texte;
    AttributsRtf attributs;
};

/// Reads the body of a rich text document, in order, with its looks. Pictures, headers, notes, hidden and deleted text
/// and the numbers of automatic lists are left out. A field gives its result. Cells of a table are separated by tabs;
/// rows and page breaks become CR LF.
/// octets: the whole file. A file that breaks off gives the text before the break.
/// Raises FormatRefuse when octets does not begin as rich text, MemoireInsuffisante.
QList<MorceauRtf> LitRtf(const QByteArray &octets);
