#include "platform/texte/TouchesVolet.h"

#include <algorithm>
#include <array>

namespace {

/// Ctrl or Alt alone. AltGr, which types characters, comes as both on some systems.
bool EstAvec(const QKeyEvent &touche, Qt::KeyboardModifier seul)
{
    return (touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == seul;
}

} // namespace

bool EstRaccourciDuMenu(const QKeyEvent &touche)
{
    if (EstAvec(touche, Qt::AltModifier))
        return !touche.text().isEmpty() && touche.text().front().isPrint();
    constexpr std::array DuVolet{Qt::Key_A, Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z};
    const bool lettre = touche.key() >= Qt::Key_A && touche.key() <= Qt::Key_Z;
    return EstAvec(touche, Qt::ControlModifier) && lettre &&
           std::find(DuVolet.begin(), DuVolet.end(), touche.key()) == DuVolet.end();
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
