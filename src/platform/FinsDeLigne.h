#pragma once

#include <QString>

// What the text pane asks of a text: the kinds of its line ends, and a form that it can hold.

/// The kinds of line end. CR LF is the ordinary one, and the value of what tells nothing.
enum class FinDeLigne { CrLf, Cr, Lf };

/// The characters of a line end.
QLatin1String TexteDe(FinDeLigne fin);

/// A stretch of text whose line ends are all of one kind.
struct Troncon
{
    FinDeLigne fin = FinDeLigne::CrLf; ///< CrLf also where there is no line end
    qsizetype suite = 0;               ///< where the next stretch begins
};

/// The longest stretch of texte from debut on, which must not lie between CR and LF.
Troncon PremierTroncon(const QString &texte, qsizetype debut);

/// texte in code page 1252: the separators of line and paragraph that other programs use as CR LF, and one "?" for each
/// character that the code page lacks.
QString Normalise(const QString &texte);

/// Same for a text that comes from another program. Many clipboards make each line end a LF, so a text without any CR
/// means CR LF by it; one that has a CR has its ends as they were written.
QString NormaliseEtranger(QString texte);
