#pragma once

#include "pilote/Operateur.h"
#include "pilote/Poste.h"

#include <QByteArrayList>
#include <QDialog>

/// The kinds of transfers.
enum class Genre { FichierEntier, LigneParLigne, Caractere, Ligne, Fichier, Banc };
constexpr Genre Genres[] = {Genre::FichierEntier, Genre::LigneParLigne, Genre::Caractere,
                            Genre::Ligne,         Genre::Fichier,       Genre::Banc};

constexpr bool EstEmission(Genre genre)
{
    return genre == Genre::FichierEntier || genre == Genre::LigneParLigne;
}

/// The data of a transfer, and its expected result.
struct Charge
{
    QByteArray texte;      ///< text of the pane, for a sending
    QByteArrayList pieces; ///< sent by the machine or bench, each after the program has processed the one before
    QByteArray attendu;    ///< what the machine must receive, or the content of the file
};

/// lignes: lines of a program without blanks at their ends, or tools of a mill, by diameter, as in a list of the bench.
Charge ChargeDe(Genre genre, const QByteArrayList &lignes);

/// An operator who plays whole transfers by himself: he confirms, names the file, starts, reads the messages, and
/// closes the dialog when the transfer is over. A test adds only what is particular to it.
class Pilote : public Operateur
{
public:
    /// poste: a started workstation. It gets a configuration for the machine on Com2, and one of a mill.
    explicit Pilote(const Poste &poste);

    /// A message that he read, other than the confirmation of the transfer.
    struct Avis
    {
        QString titre;
        QString texte;
        bool operator==(const Avis &) const = default;
    };
    struct Deroulement
    {
        QList<Avis> avis;
        QString statut; ///< status line at the end; empty when the dialog closed by itself
        QString bilan;  ///< line that says what has passed and what was lost
    };

    /// Sets ParamCom for a kind of transfer; any field may be changed afterwards.
    void Regle(Genre genre) const;
    /// Path of the file that a reception of that kind writes.
    QString Chemin(Genre genre) const;
    /// Path under which he saves the lines that a failed reception offers; empty: he declines.
    QString Sauvegarde;
    /// True when the program has taken everything that the machine has sent; only for a line that can tell.
    Condition Pris;

    /// Plays one transfer of charge to its end, in whatever way it ends. pendant: called repeatedly while it runs.
    Deroulement Joue(Genre genre, const Charge &charge, const std::function<void(QDialog &transfert)> &pendant);
    /// For calls from pendant, in an undisturbed reception: once the program has processed what came before, the
    /// machine sends its next piece, and the operator of a bench goes on to the next tool or to the end.
    void Poursuit(const QDialog &transfert, const std::function<void(const QByteArray &piece)> &envoie);
    /// Presses the cancel button of the transfer dialog.
    static void Annule(Genre genre, const QWidget &transfert);

private:
    void Lit(QMessageBox &boite);
    void ChoisitFichier(QWidget &dialogue) const;
    void Nomme(const QWidget &dialogue);
    void Transfere(QDialog &dialogue);
    bool Pret(const QDialog &transfert) const;

    const Poste &m_poste;
    QElapsedTimer m_depuis;

    Genre m_genre = Genre::FichierEntier;
    std::function<void(QDialog &)> m_pendant;
    Charge m_charge;
    qsizetype m_donnees = 0; // pieces given
    Deroulement m_deroulement;
    bool m_nomme = false;    // he has named the file
    bool m_commence = false; // the transfer has begun
};
