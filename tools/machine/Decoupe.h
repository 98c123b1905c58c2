#pragma once

#include <QByteArray>

/// Cuts received characters into programs. A program begins after the beginning chain (at once when there is none) and
/// ends at the end-of-transfer chain. Both chains may be the same, as the "%" of many machines.
class Decoupe
{
public:
    /// debut: beginning chain, may be empty; fin: end-of-transfer chain; an empty one never ends a program.
    Decoupe(const QByteArray &debut, const QByteArray &fin);

    /// Takes one more character. True when it completed the end chain: the program is then to be taken before the next
    /// character.
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
