#pragma once

#include <QColor>
#include <QFont>

#include <optional>

class QFileDialog;
class QPrinter;
class QWidget;

// The dialogs of CommonDialog that differ by system. Each system has its own unit: Linux shows the toolkit's in the
// operator's language, Windows its own in that of Windows. Each is modal over fenetre; one that the operator cancels
// has changed nothing.

/// True where files and folders are asked for in the system's own dialogs. There the variable DIALOGUES_QT of the
/// environment still gives the toolkit's, for a script that works them: under Wine the system's own leave the keyboard
/// to no window.
bool FichiersDuSysteme();

/// Shows a dialog for files or folders that is ready. False when the operator cancels.
bool DemandeFichiers(QFileDialog &dialogue);

struct ChoixPolice
{
    QFont offerte; ///< as the dialog named it: it may know no half points
    QFont choisie;
    QColor couleur;
};

/// Asks for a font with its effects and colour, police and couleur first offered.
std::optional<ChoixPolice> DemandePolice(QWidget *fenetre, const QFont &police, const QColor &couleur);

/// Asks how imprimante is to print, number of copies among it. selection: the selection is offered beside the whole.
/// False when the operator cancels. Raises SansImprimante when there is none.
bool DemandeImpression(QWidget *fenetre, QPrinter &imprimante, bool selection);

/// Asks for printer and paper in a dialog of that titre, and gives imprimante both. False when the operator cancels.
/// Raises SansImprimante when there is none.
bool DemandeReglageImprimante(QWidget *fenetre, QPrinter &imprimante, const QString &titre);
