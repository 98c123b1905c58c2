#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>

/// How a stretch of rich text looks.
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

/// A stretch of text that looks the same throughout. Paragraphs and forced lines end in CR LF.
struct MorceauRtf
{
    QString texte;
    AttributsRtf attributs;
};

/// The text of a rich text file, in order, with its looks: what a word processor shows as the body of the document.
/// Pictures, headers, notes, hidden and deleted text and the numbers of automatic lists are left out; a field gives its
/// result; cells of a table are separated by tabs, its rows and page breaks by CR LF.
/// octets: the whole file. One that breaks off in the middle gives what stands before the break.
/// Raises FormatRefuse when octets does not begin as rich text, MemoireInsuffisante.
QList<MorceauRtf> LitRtf(const QByteArray &octets);
