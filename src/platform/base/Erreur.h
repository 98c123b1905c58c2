#pragma once

#include <QString>

#include <exception>
#include <optional>

/// A platform operation that failed: its number, what it failed on and the system's cause.
/// A handler catches it at one place near its end, or wraps each statement that may fail in Saute().
class Erreur : public std::exception
{
public:
    /// numero: the number by which the program knows the failure (see the constants below and ErreurPort.h).
    /// objet: what failed: the file, the device, the value.
    /// cause: the system's own number for it (see Cause.h), 0 where it has none.
    Erreur(int numero, const QString &objet, int cause = 0);

    int Numero() const { return m_numero; }
    const QString &Objet() const { return m_objet; }
    int Cause() const { return m_cause; }
    /// The object and the system's own words for the cause, for whoever looks after the program.
    const QString &Description() const { return m_description; }
    const char *what() const noexcept override { return m_octets.constData(); }

    // Numbers of the operations on numbers, files and dialogs; those of the serial control are in ErreurPort.h.
    static constexpr int Depassement = 6;         ///< a number that does not fit its field
    static constexpr int MemoireInsuffisante = 7; ///< a text too large to hold
    static constexpr int IndiceHorsPlage = 9;     ///< a position beyond the end of a table
    static constexpr int TypeIncompatible = 13;   ///< a line that does not have the form of its field
    static constexpr int FichierIntrouvable = 53; ///< no such file or program
    static constexpr int ErreurFichier = 57;      ///< reading or writing failed
    static constexpr int DisqueSature = 61;       ///< no room left on the disk
    static constexpr int FinDeFichier = 62;       ///< the file ended before the field
    static constexpr int AccesRefuse = 70;        ///< no permission
    static constexpr int FormatRefuse = 321;      ///< the text pane does not know the file's form
    static constexpr int MotifRefuse = 380;       ///< a filter for files with characters that no file name has
    static constexpr int SansImprimante = 482;    ///< no printer is installed
    static constexpr int DialogueAnnule = 32755;  ///< the operator cancelled a common dialog

private:
    int m_numero;
    int m_cause;
    QString m_objet;
    QString m_description;
    QByteArray m_octets;
};

/// The failure of an operation on files or folders that the system refused with cause: DisqueSature,
/// FichierIntrouvable, AccesRefuse, or else ErreurFichier.
Erreur ErreurDeFichier(int cause, const QString &objet = {});

/// Runs one step of a routine and goes on with the next when it fails, without a message.
template <typename Etape>
void Saute(Etape etape)
{
    try {
        etape();
    } catch (const Erreur &) {
        // ignored: the next step of the routine runs all the same
    }
}

/// A failure that is reported later, if there was one.
using ErreurEnAttente = std::optional<Erreur>;

/// Runs one step of a routine and keeps its failure in enAttente, in place of an earlier one. The routine goes on.
template <typename Etape>
void Tente(ErreurEnAttente &enAttente, Etape etape)
{
    try {
        etape();
    } catch (const Erreur &erreur) {
        enAttente.emplace(erreur);
    }
}
