#include "machine/Banc.h"

#include <string>

namespace {

/// texte filled with blanks to the length of a burst, with CR LF at its end.
QByteArray Complete(const QByteArray &texte)
{
    return texte.leftJustified(Banc::TailleSalve - 2, ' ', true) + "\r\n";
}

QByteArray SalveDe(const QByteArray &ligne)
{
    if (ligne.size() > 1 && ligne.startsWith('"') && ligne.endsWith('"'))
        return Complete(ligne.mid(1, ligne.size() - 2));
    const QByteArrayList champs = ligne.simplified().split(' ');
    return champs.size() == 4 ? Banc::Salve(champs[0], champs[1], champs[2], champs[3]) : QByteArray();
}

} // namespace

Banc::Banc(const QByteArray &liste)
{
    int numero = 0;
    for (const QByteArray &brute : liste.split('\n')) {
        ++numero;
        const QByteArray ligne = brute.trimmed();
        if (ligne.isEmpty() || ligne.startsWith('#'))
            continue;
        m_salves += SalveDe(ligne);
        if (m_salves.last().isEmpty())
            throw ListeFausse("line " + std::to_string(numero) + " is no tool: corrector, Z, X, R or D");
    }
    if (m_salves.isEmpty())
        throw ListeFausse("there is no tool in it");
}

QByteArray Banc::Mesure()
{
    m_numero = m_numero % Nombre() + 1;
    return m_salves[m_numero - 1];
}

QByteArray Banc::Salve(const QByteArray &correcteur, const QByteArray &z, const QByteArray &x, const QByteArray &mode)
{
    const auto champ = [](const QByteArray &texte, int largeur) { return texte.rightJustified(largeur, ' ', true); };
    return Complete("TN:" + champ(correcteur, 5) + champ("Z ", 16) + champ(z, 9) + champ("X ", 16) + champ(x, 9) +
                    "   " + mode.left(1));
}
