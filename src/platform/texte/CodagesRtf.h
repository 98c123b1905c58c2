#pragma once

#include <QByteArray>
#include <QString>

// The code pages of a rich text file: one for the file, and others for some of its fonts. A code page is identified by
// the name of the system's converter; the empty name means code page 1252.

/// The code page with the number page.
QByteArray CodageDePage(int page);

/// The code page of the Windows font character set jeu; empty for the Western, default and symbol sets, which have
/// none.
QByteArray CodageDeJeu(int jeu);

/// The text of octets. A byte that the code page lacks becomes the replacement character (U+FFFD), and so does any
/// stray byte above 127 when the system has no converter for codage.
QString TexteDeCodage(const QByteArray &octets, const QByteArray &codage);
