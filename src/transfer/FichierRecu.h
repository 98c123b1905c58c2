#pragma once

#include <QString>

// The file that a reception leaves, and its way into the program pane.

/// What the file of a reception holds once texte has come: one CR LF behind it.
QString CommeFichierRecu(const QString &texte);

/// Writes texte and one CR LF to CheminRecep(), replacing what was there; a file that the disk cuts does not stay.
/// Raises what EcritFichierTexte raises, with the path.
void EcritFichierRecu(const QString &texte);

/// A reception begins: what an earlier one has left on the disk is not its file.
void OublieFichierRecu();

/// Creates or empties CheminRecep(), for a reception that writes as it goes; AjouteFichierRecu() then adds texte and
/// one CR LF. Raise as EcritFichierRecu().
void CreeFichierRecu();
void AjouteFichierRecu(const QString &texte);

/// Makes the file of the last reception the document. One of 65536 bytes or more is not shown: the pane empties and the
/// operator may open it with the word processor. When it was not written whole, or cannot be read, nothing changes.
void OuvreFichierRecu();

/// Makes chemin the document in the same way.
void MontreRecu(const QString &chemin);

/// The file of the last reception is gone, its text still stands in the pane: it is a text without a name then, changed
/// and not to be sent.
void PerdNomRecu();

/// How a text that stands on no disk is offered for saving.
struct OffreSauvegarde
{
    QString titre; ///< of the question and of the file dialog
    QString question;
    QString filtre; ///< of the file dialog, as in CommonDialog::Filter
    QString nom;    ///< name first offered; a name typed without an ending gets its ending
};

/// The offer of a reception that has failed: on its way or, terminee, when its file was to be written.
OffreSauvegarde OffreTexteRecu(bool terminee);

/// Offers to save texte, again and again until it is written or given up. An empty texte asks nothing. A copy stands in
/// the folder of the kept texts until texte is written. Gives the full path of the file written, "" for none.
QString SauveAilleurs(const QString &texte, const OffreSauvegarde &offre);
