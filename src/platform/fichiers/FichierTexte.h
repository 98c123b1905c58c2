#pragma once

#include <QByteArray>
#include <QString>

/// Largest file, in bytes, that is read whole: what the text pane can hold in its positions.
constexpr qint64 TailleMaxOctets = qint64{512} * 1024 * 1024;

// Files read and written whole, in code page 1252. Nothing is converted but the characters: line ends stay as they are.

/// The bytes of the file at chemin.
/// tailleMax: largest size in bytes that the caller can use. Raises FichierIntrouvable, AccesRefuse, ErreurFichier,
/// or MemoireInsuffisante for a larger file or one that finds no room in memory.
QByteArray LitOctets(const QString &chemin, qint64 tailleMax = TailleMaxOctets);

/// Same, as text.
QString LitFichierTexte(const QString &chemin, qint64 tailleMax = TailleMaxOctets);

/// What becomes of a file that a failed write has cut.
enum class FichierCoupe {
    Reste,
    Part ///< a program that breaks off under the right name is worse than none
};

/// Creates or empties the file at chemin and writes texte to it. A disk without room for it is found out before a file
/// that held something is emptied; what a write that fails later has left goes by coupe. When it returns the disk holds
/// the text. Raises FichierIntrouvable, AccesRefuse, DisqueSature, ErreurFichier.
void EcritFichierTexte(const QString &chemin, const QString &texte, FichierCoupe coupe = FichierCoupe::Reste);

/// Adds texte at the end of the file at chemin, which must exist; what it held is not touched. Where the disk takes
/// only a part of texte, that is cut off again: the file never ends in half a line. Raises as EcritFichierTexte().
void AjouteFichierTexte(const QString &chemin, const QString &texte);

/// True when chemin names a plain file; any failure gives False.
bool FichierExiste(const QString &chemin);
