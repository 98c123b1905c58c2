#pragma once

#include <QString>

#include <functional>
#include <optional>

// Folders of the disk: made, renamed, deleted. A failure raises AccesRefuse, FichierIntrouvable, DisqueSature or
// ErreurFichier, and its description names the path that it concerns.

/// What a folder holds, at any depth. A link counts as one file, whatever it leads to.
struct ContenuDossier
{
    qint64 dossiers = 0;
    qint64 fichiers = 0;
};

/// Counts what the folder at chemin holds, as far as it can be read; a link to a folder holds nothing. Raises nothing.
ContenuDossier CompteContenu(const QString &chemin);

/// True for a folder that is no part of another one: the root of a drive, or of a volume such as a USB key.
bool EstRacine(const QString &chemin);

/// The rest of chemin behind dossier, such as "/b.iso", when chemin leads through that folder; "" when it is the folder
/// itself, none when it leads elsewhere. chemin: a full path. Links and ".." are seen through on both sides; when
/// dossier itself is a link, only a path that uses the link leads through it.
std::optional<QString> ResteDerriere(const QString &dossier, const QString &chemin);

/// Creates one folder; the folder that is to hold it exists. A name in use is a failure.
void CreeDossier(const QString &chemin);

/// Makes the folder chemin, and those above it, where they are missing. Raises the system's cause.
void AssureDossier(const QString &chemin);

/// Gives the folder (or link) ancien the path nouveau, which may lie elsewhere on the same volume. What already stands
/// under that path is never overwritten: that is a failure.
void RenommeDossier(const QString &ancien, const QString &nouveau);

/// Deletes the folder at chemin with all it holds, for good. A link is removed and what it leads to is left alone; that
/// holds for chemin itself too. suivi is called after each entry; false from it stops, which raises DialogueAnnule.
/// It stops at the first entry that resists: what is then left stays as it is.
void EffaceDossier(const QString &chemin, const std::function<bool()> &suivi);
