#pragma once

#include <QString>

// What the text pane asks of a text: the kinds of its line ends, and a form that it can hold.

/// The kinds of line end. CR LF is the ordinary one, and the value of what tells nothing. Aucune is no line end of the
/// text: a line too long for one row of the pane goes on in the next row.
enum class FinDeLigne { CrLf, Cr, Lf, Aucune };

/// Most characters that a row of the pane is given. A row is laid out whole, however little of it is seen, and that
/// takes its time: some 30 rows of this length stay unnoticed.
constexpr qsizetype LongueurRang = 2048;

/// The characters of a line end.
QLatin1String TexteDe(FinDeLigne fin);

/// A stretch of text whose line ends are all of one kind.
struct Troncon
{
    FinDeLigne fin = FinDeLigne::CrLf; ///< CrLf also where there is no line end
    qsizetype suite = 0;               ///< where the next stretch begins
};

/// The longest stretch of texte from debut on, which must not lie between CR and LF. A stretch of Aucune is what a row
/// still takes of a line that is too long for it.
/// colonne: characters that the row holds already.
Troncon PremierTroncon(const QString &texte, qsizetype debut, qsizetype colonne);

/// texte in code page 1252: the separators of line and paragraph that other programs use as CR LF, and one "?" for each
/// character that the code page lacks.
QString Normalise(const QString &texte);

/// Same for a text that comes from another program. Many clipboards make each line end a LF, so a text without any CR
/// means CR LF by it; one that has a CR has its ends as they were written.
QString NormaliseEtranger(QString texte);
