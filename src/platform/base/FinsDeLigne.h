#pragma once

#include <QString>

// Line ends for the text pane: their kinds, where they change in a text, and texts of other programs brought into a
// form that the pane can hold.

/// The kinds of line end. CrLf is the ordinary one and the default. Aucune stands where a line is too long for one row
/// of the pane and goes on in the next row: the text has no line end there.
enum class FinDeLigne { CrLf, Cr, Lf, Aucune };

/// Longest row of the pane, in characters. Qt lays out a row whole even when little of it is visible. At this length a
/// screen of some 30 rows still appears without a delay that the operator notices.
constexpr qsizetype LongueurRang = 2048;

/// The characters of a line end.
QLatin1String TexteDe(FinDeLigne fin);

/// A stretch of text whose line ends are all of one kind.
struct Troncon
{
    FinDeLigne fin = FinDeLigne::CrLf; ///< CrLf also where there is no line end
    qsizetype suite = 0;               ///< where the next stretch begins
};

/// The longest stretch of texte that begins at debut. A stretch of Aucune is the part of a too long line that still
/// fits into the row.
/// debut: a position in texte, never between CR and LF. colonne: number of characters that the row already holds.
Troncon PremierTroncon(const QString &texte, qsizetype debut, qsizetype colonne);

/// Number of lines as an operator counts them, whatever ends them. A line end at the end of texte begins no further
/// one.
qint64 NombreLignes(const QString &texte);

/// Returns texte with characters of code page 1252 only: the line and paragraph separators of Unicode become CR LF,
/// every other character that the code page lacks becomes "?".
QString Normalise(const QString &texte);

/// Same for a text that comes from another program. Many clipboards turn each line end into LF, so in a text without
/// any CR each LF becomes CR LF. In a text with a CR the line ends stay as they are.
QString NormaliseEtranger(QString texte);
