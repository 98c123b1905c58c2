#pragma once

#include <QString>

#include <functional>
#include <optional>

// Making, renaming and deleting folders. A failure raises AccesRefuse, FichierIntrouvable, DisqueSature or
// ErreurFichier; its description names the path. Each system has its own unit for what changes the disk.

/// Number of entries of a folder at any depth. A link counts as one file, whatever it leads to.
struct ContenuDossier
{
    qint64 dossiers = 0;
    qint64 fichiers = 0;
};

/// Counts the entries of the folder at chemin, as far as it can be read. A link to a folder counts as empty. Never
/// raises.
ContenuDossier CompteContenu(const QString &chemin);

/// True for a link: a symbolic link or, on Windows, a junction.
bool EstLien(const QString &chemin);

/// True for the root of a drive or of a volume such as a USB key.
bool EstRacine(const QString &chemin);

/// The part of chemin below dossier, such as "/b.iso"; "" when chemin is the folder itself, nothing when it lies
/// elsewhere. Links and ".." are resolved in both. When dossier itself is a link, only a path that uses the link lies
/// below it. chemin: a full path.
std::optional<QString> ResteDerriere(const QString &dossier, const QString &chemin);

/// Creates one folder. The folder above it must exist and the name must be free.
void CreeDossier(const QString &chemin);

/// Creates the folder chemin and those above it where they are missing.
void AssureDossier(const QString &chemin);

/// Gives the folder or link ancien the path nouveau, which may lie elsewhere on the same volume. An existing nouveau is
/// a failure and stays as it is.
void RenommeDossier(const QString &ancien, const QString &nouveau);

/// Deletes the folder at chemin with all its entries, for good. Links, chemin included, are removed; their targets are
/// not touched. It stops at the first entry that cannot be deleted and leaves the rest.
/// suivi: called after each entry; when it returns false the deletion stops with DialogueAnnule.
void EffaceDossier(const QString &chemin, const std::function<bool()> &suivi);
