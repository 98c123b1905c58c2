#pragma once

#include "machine/MachineSimulee.h"
#include "pilote/Pilote.h"

#include <QRandomGenerator>

/// How a transfer ended.
enum class Sort { Entier, Annule, Debranche };

/// Plays transfers with a simulated machine that holds the line and falls silent, a busy PC, and an operator who
/// sometimes cancels or pulls the plug. All of it is random and follows a seed, as far as the clocks allow. Complete
/// data is compared byte for byte; interrupted data must be a beginning of it.
class Epreuve
{
public:
    Epreuve(const Poste &poste, quint32 graine);

    /// Plays one transfer and returns how it ended. voulu: what the operator intends; when he is too late, the transfer
    /// is complete all the same.
    Sort Joue(Genre genre, Sort voulu);
    /// Chooses an intention at random; five in seven transfers are left alone.
    Sort Tire();
    /// The differences found so far, one line each.
    const QStringList &Ecarts() const { return m_ecarts; }

private:
    int Hasard(int max) { return int(m_alea.bounded(quint32(max))); }
    QByteArrayList Lignes(Genre genre);
    QByteArray Outil();
    QByteArray Ligne();
    ReglageMachine Reglage();

    void Pendant(QDialog &transfert);
    void Donne(const QByteArray &piece);
    void Agit(const QDialog &transfert);
    qint64 Passes() const;
    Sort JugeEmission();
    Sort JugeReception();
    void Exige(bool juste, const char *quoi);

    const Poste &m_poste;
    Pilote m_pilote;
    QRandomGenerator m_alea;
    QStringList m_ecarts;
    int m_numero = 0;

    // The transfer under way
    Genre m_genre = Genre::FichierEntier;
    Sort m_voulu = Sort::Entier;
    Charge m_charge;
    qint64 m_apres = 0;     // characters after which the operator acts
    bool m_retenue = false; // the machine waits at that point, so that he is in time
    bool m_agi = false;
    qint64 m_donnes = 0; // characters of the pieces given
    qint64 m_avant = 0;  // of these, before the last piece
    MachineSimulee *m_machine = nullptr;
    Pilote::Deroulement m_deroulement;
};
