#include "platform/base/Touches.h"

#include <algorithm>
#include <array>

bool EstAvec(const QKeyEvent &touche, Qt::KeyboardModifier seul)
{
    return (touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == seul;
}

bool EstEntree(const QKeyEvent &touche)
{
    const bool entree = touche.key() == Qt::Key_Return || touche.key() == Qt::Key_Enter;
    return entree && !(touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

bool DonneUnCaractere(const QKeyEvent &touche)
{
    constexpr std::array<char16_t, 4> Commandes{u'\r', u'\n', u'\t', u'\b'};
    if (touche.text().isEmpty() || EstAvec(touche, Qt::ControlModifier))
        return false;
    const QChar c = touche.text().front();
    return c.isPrint() || std::find(Commandes.begin(), Commandes.end(), c.unicode()) != Commandes.end();
}
