#pragma once

#include <QString>

/// What the program knows of the CN program in the main window: its file, and whether it has changed. The text itself
/// stands in the pane and nowhere else.
struct EtatDocument
{
    /// The file at chemin becomes that of the text. chemin: full path, "" for none.
    void Nomme(const QString &chemin);

    QString NomFichier;   ///< full path of the file; a bare name after Mnu_Nouveau; "" before the first file
    QString TitreFichier; ///< its name without the folder
    QString NomRecu;      ///< path of the file whose reception has put the text into the pane, "" when the text is
                          ///< that of NomFichier
    bool FichierModifie = false; ///< the text has changed since it was loaded or saved
    QString TexteAnnuler;        ///< the whole text before the last edit command: the one level of undo
    int IndexFiltre = 0;         ///< filter last used in the open dialog, from 1; 0 before the first opening
};

extern EtatDocument Document; ///< the program in the main window
