#pragma once

#include <QByteArray>
#include <QString>

// The code pages of a rich text file: one for the file, and others for some of its fonts. A code page is identified by
// the number that Windows gives it; 0 means code page 1252.

/// The code page of the Windows font character set jeu; 0 for the Western, default and symbol sets, which have none.
int PageDeJeu(int jeu);

/// The text of octets. A byte that the code page lacks becomes the replacement character (U+FFFD), and so does any
/// stray byte above 127 when the system has no converter for page.
QString TexteDePage(const QByteArray &octets, int page);
