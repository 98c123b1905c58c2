#include "machine/Decoupe.h"

Decoupe::Decoupe(const QByteArray &debut, const QByteArray &fin)
    : m_debut(debut)
    , m_fin(fin)
{
    Vide();
}

bool Decoupe::Ajoute(char caractere)
{
    m_brut.append(caractere);
    if (m_debutTexte < 0) {
        if (m_brut.endsWith(m_debut))
            m_debutTexte = m_brut.size();
        return false;
    }
    const bool place = m_brut.size() - m_debutTexte >= m_fin.size();
    m_fini = place && !m_fin.isEmpty() && m_brut.endsWith(m_fin);
    return m_fini;
}

void Decoupe::Vide()
{
    m_brut.clear();
    m_debutTexte = m_debut.isEmpty() ? 0 : -1;
    m_fini = false;
}

QByteArray Decoupe::Texte() const
{
    if (m_debutTexte < 0)
        return {};
    const QByteArray texte = m_brut.mid(m_debutTexte);
    return m_fini ? texte.chopped(m_fin.size()) : texte;
}
