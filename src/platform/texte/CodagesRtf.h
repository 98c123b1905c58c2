#pragma once

#include <QByteArray>
#include <QString>

// The code pages in which a rich text file writes its bytes: one for the file, others for some of its fonts. A code
// page goes by the name that the system's converter gives it; an empty name is code page 1252.

/// The code page of that number.
QByteArray CodageDePage(int page);

/// The code page of a Windows font character set; empty for the Western, default and symbol sets, which have none of
/// their own.
QByteArray CodageDeJeu(int jeu);

/// The text of octets. A byte that the code page lacks, or any byte above 127 where the system has no converter for it,
/// gives the replacement character.
QString TexteDeCodage(const QByteArray &octets, const QByteArray &codage);
