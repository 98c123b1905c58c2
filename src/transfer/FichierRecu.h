#pragma once

#include <QString>

// The file that a reception leaves, and its way into the program pane.

/// The content of a reception's file: texte and one CR LF.
QString CommeFichierRecu(const QString &texte);

/// Writes texte and one CR LF to CheminRecep() in place of what was there. A file that the disk cuts does not stay.
/// Raises what EcritFichierTexte raises, with the path.
void EcritFichierRecu(const QString &texte);

/// To be called when a reception begins. OuvreFichierRecu() then no longer opens the file of an earlier one.
void OublieFichierRecu();

/// Creates or empties CheminRecep(), for a reception that writes as it goes. AjouteFichierRecu() then adds texte and
/// one CR LF to it. Both raise what EcritFichierRecu() raises.
void CreeFichierRecu();
void AjouteFichierRecu(const QString &texte);

/// Makes the file of the last reception the document. A file of 65536 bytes or more is not shown: the pane empties, and
/// the operator may open the file with the word processor. Nothing changes when the file was not written whole or
/// cannot be read.
void OuvreFichierRecu();

/// Makes chemin the document in the same way.
void MontreRecu(const QString &chemin);

/// Takes the name from the text in the pane, for a reception whose file is gone. The text then counts as changed and
/// cannot be sent.
void PerdNomRecu();

/// How a text that no file holds is offered for saving.
struct OffreSauvegarde
{
    QString titre; ///< of the question and of the file dialog
    QString question;
    QString filtre; ///< of the file dialog, as in CommonDialog::Filter
    QString nom;    ///< name first offered; a name typed without an ending gets its ending
};

/// The offer after a failed reception. terminee: the text has come whole, and only its file could not be written.
OffreSauvegarde OffreTexteRecu(bool terminee);

/// Offers to save texte, again and again until it is written or given up. An empty texte asks nothing. A copy stands in
/// the folder of the kept texts until texte is written. Gives the full path of the file written, "" for none.
QString SauveAilleurs(const QString &texte, const OffreSauvegarde &offre);
