#pragma once

#include <QString>
#include <QStringList>

class VueTransfert;

// The line Bilan of the transfer dialog: before a transfer what will go out (see Apercu), behind it what has happened,
// which Label2 does not know: it says "success" whatever was lost on the way.

/// True when texte holds nothing that can be read: blanks and control characters.
bool EstMuet(QStringView texte);

/// A transfer begins: what is counted from here on is its own.
void DebuteBilan();

/// The port should be open by now. Where it is not, the line says so, at the end too.
void NotePort(VueTransfert &vue);

/// Why characters that have come are not in the file of a reception.
enum class Perte {
    Jetes,      ///< they stood behind a line end, where the reception empties the port
    SansFin,    ///< the line under way had no end
    Debordement ///< the port was emptied since the system had lost some already
};

/// The reception drops caracteres. What no program misses does not count: the end of transfer or its tail, and what is
/// mute. An end of transfer among them is told as long as the reception waits for it.
void NotePerte(Perte perte, const QString &caracteres);

/// The end of transfer has come in one reading with a line, where the reception by line does not see it: it waits on,
/// and the operator has to force the end.
void NoteFinCollee();

/// What has gone wrong so far.
void MontreFautes(VueTransfert &vue);
/// Same, where a reception has dropped something since the last showing. It costs nothing where it has not.
void MontreNouvellesPertes(VueTransfert &vue);

/// How a transfer has ended. A reception that failed has left no whole file, whatever came.
enum class Issue { Emis, EmissionRompue, Recu, ReceptionRompue };

/// How much has passed, in what time, whether the operator forced the end, and what went wrong, with what can be done
/// about it. manques: sentences on what did not go out, the whole program above all.
void MontreBilan(VueTransfert &vue, Issue issue, const QStringList &manques = {});

/// What a reception that failed had received stands in chemin now: MontreBilan() with that place, its middle cut where
/// it is too long for a line.
void MontreSauve(VueTransfert &vue, const QString &chemin);
