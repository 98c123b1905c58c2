#pragma once

#include <QString>
#include <QStringList>

class VueTransfert;

// The line Bilan of the transfer dialog. Before a transfer it says what will go out (see Apercu), afterwards what has
// happened. The status does not tell that: it says "success" whatever was lost on the way.

/// True if texte holds nothing but blanks and control characters.
bool EstMuet(QStringView texte);

/// The sentence for MontreBilan() that says that nothing of a program is in the file received. Empty if recu holds
/// something.
QStringList AlerteVide(QStringView recu);

/// A transfer begins: all counts start at zero.
void DebuteBilan();

/// To be called when the port should be open. If it is not, the line says so, now and at the end.
void NotePort(VueTransfert &vue);

/// Why received characters are not in the file of a reception.
enum class Perte {
    Jetes,       ///< they came after a line end, where the reception empties the port
    ApresFin,    ///< they came after the end of transfer
    SansFin,     ///< they belong to a line without an end
    Debordement, ///< the port was emptied after the system had lost characters
    FinForcee    ///< the operator forced the end
};

/// The reception drops caracteres. Blanks, control characters, the end of transfer and its tail are not counted, since
/// no program misses them. If an end of transfer is among them, the line says so as long as the reception waits for it.
void NotePerte(Perte perte, const QString &caracteres);

/// Looks for an end of transfer within lu, the characters that came together. A reception does not recognize it there:
/// it goes on waiting, and the operator has to force the end. premier: lu begins the program, which may have that sign
/// at its head too.
void ChercheFinCollee(const QString &lu, bool premier);

/// Shows what has gone wrong so far.
void MontreFautes(VueTransfert &vue);
/// Same, but only if a reception has dropped something since the last showing. Otherwise the call costs nothing.
void MontreNouvellesPertes(VueTransfert &vue);

/// How a transfer has ended. After ReceptionRompue there is no whole file, whatever was received.
enum class Issue { Emis, EmissionRompue, Recu, ReceptionRompue };

/// Shows how much has passed in what time, whether the operator forced the end, and what went wrong, with its remedy.
/// manques: sentences about what was not sent or received.
void MontreBilan(VueTransfert &vue, Issue issue, const QStringList &manques = {});

/// What a failed reception had received was saved as chemin: MontreBilan() with that path before it. A path that is too
/// long for a line is cut in its middle.
void MontreSauve(VueTransfert &vue, const QString &chemin);
