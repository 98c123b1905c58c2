#pragma once

#include "pilote/Operateur.h"
#include "pilote/Poste.h"

#include <QByteArrayList>
#include <QDialog>

/// The ways in which bytes cross the line.
enum class Genre { FichierEntier, LigneParLigne, Caractere, Ligne, Fichier, Banc };
constexpr Genre Genres[] = {Genre::FichierEntier, Genre::LigneParLigne, Genre::Caractere,
                            Genre::Ligne,         Genre::Fichier,       Genre::Banc};

constexpr bool EstEmission(Genre genre)
{
    return genre == Genre::FichierEntier || genre == Genre::LigneParLigne;
}

/// What goes through a transfer, and what has to be at its end.
struct Charge
{
    QByteArray texte;      ///< what the pane holds; a sending alone
    QByteArrayList pieces; ///< what the machine or bench sends, each once the program has dealt with the one before
    QByteArray attendu;    ///< what the machine gets, or the file on the disk
};

/// lignes: lines of a program, without a blank at their ends, or tools of a mill as a bench list writes them, by
/// diameter.
Charge ChargeDe(Genre genre, const QByteArrayList &lignes);

/// An operator who plays whole transfers by habit: he confirms, names the file, starts, reads what he is told, and
/// closes when it is over. What is particular to one transfer is given along with it, or foretold to him.
class Pilote : public Operateur
{
public:
    /// The workstation has started. It gets a configuration for the machine on Com2, and one of a mill.
    explicit Pilote(const Poste &poste);

    /// What he read in a box that did not ask him to confirm the transfer.
    struct Avis
    {
        QString titre;
        QString texte;
        bool operator==(const Avis &) const = default;
    };
    struct Deroulement
    {
        QList<Avis> avis;
        QString statut; ///< what the status line bore at the end; empty when the dialog closed by itself
        QString bilan;  ///< and the line that tells what has passed and what was lost
    };

    /// The configuration becomes that of a kind; any field may be changed afterwards.
    void Regle(Genre genre) const;
    /// The file that a reception of that kind leaves.
    QString Chemin(Genre genre) const;
    /// Where he saves what a failed reception offers him; empty: he declines.
    QString Sauvegarde;
    /// True when all that the machine has sent is with the program; for a line that can be looked into.
    Condition Pris;

    /// Plays one transfer of charge to its end, whatever that is. pendant: called again and again while it runs.
    Deroulement Joue(Genre genre, const Charge &charge, const std::function<void(QDialog &transfert)> &pendant);
    /// From inside pendant, as long as nothing disturbs a reception: once the program has dealt with all that came
    /// before, the machine gives its next piece, and the operator of a bench goes on to the next tool or to the end.
    void Poursuit(const QDialog &transfert, const std::function<void(const QByteArray &piece)> &envoie);
    /// The cancel button of a kind's dialog.
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
    bool m_nomme = false;    // the file has been named
    bool m_commence = false; // the transfer has begun
};
