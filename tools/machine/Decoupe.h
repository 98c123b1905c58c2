#pragma once

#include <QByteArray>

/// Finds the program in what the line brings: it begins behind the beginning chain (at once where there is none) and
/// ends at the end-of-transfer chain. The same chain may serve for both, as the "%" of many controls does.
class Decoupe
{
public:
    /// debut: may be empty; fin: empty never ends a program.
    Decoupe(const QByteArray &debut, const QByteArray &fin);

    /// One more character. True: it completed the end chain, and the program is to be taken before the next one.
    bool Ajoute(char caractere);
    void Vide();

    const QByteArray &Brut() const { return m_brut; } ///< all since the last program, chains included
    QByteArray Texte() const;                         ///< what stands between the chains, as far as it has come

private:
    QByteArray m_debut;
    QByteArray m_fin;
    QByteArray m_brut;
    qsizetype m_debutTexte = -1; // -1 while the beginning chain is awaited
    bool m_fini = false;
};
