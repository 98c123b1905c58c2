#pragma once

#include <QByteArray>
#include <QString>

/// Largest file that is read, in bytes: the most that the positions of the text pane can count.
constexpr qint64 TailleMaxOctets = qint64{512} * 1024 * 1024;

// Reading and writing whole files in code page 1252. Line ends stay as they are.

/// The bytes of the file at chemin.
/// tailleMax: largest size in bytes that the caller can use. Raises FichierIntrouvable, AccesRefuse or ErreurFichier,
/// and MemoireInsuffisante for a larger file or when memory runs out.
QByteArray LitOctets(const QString &chemin, qint64 tailleMax = TailleMaxOctets);

/// Same, as text.
QString LitFichierTexte(const QString &chemin, qint64 tailleMax = TailleMaxOctets);

/// What to do with the incomplete file that a failed write leaves.
enum class FichierCoupe {
    Reste,
    Part ///< it is deleted: half a program under the right name is worse than none
};

/// Creates the file at chemin or replaces its content by texte. A disk without enough room is found out before the old
/// content is touched. When the function returns, the text is on the disk.
/// coupe: what to do with the file when the writing fails half-way.
/// Raises FichierIntrouvable, AccesRefuse, DisqueSature, ErreurFichier.
void EcritFichierTexte(const QString &chemin, const QString &texte, FichierCoupe coupe = FichierCoupe::Reste);

/// Appends texte to the file at chemin, which must exist. When the disk takes only a part of texte, that part is
/// removed again, so that the file never ends in half a line. Raises as EcritFichierTexte().
void AjouteFichierTexte(const QString &chemin, const QString &texte);

/// True when chemin names a plain file that can be reached.
bool FichierExiste(const QString &chemin);
