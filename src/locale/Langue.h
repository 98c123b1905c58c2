#pragma once

#include <QString>

/// Language of the operator: 0 French, 1 English, 2 Spanish. It lives for the run and in "Dorvanel.ini". Any other
/// value, which only a damaged file brings, chooses no text: what stands on the screen stays, and boxes come in French.
extern int LangIndex;

/// Value of LangIndex when the settings file holds something that is no number.
constexpr int LangAucune = -1;

/// A text for the operator in the three languages.
struct Texte3
{
    const char16_t *francais;
    const char16_t *anglais;
    const char16_t *espagnol;
};

/// The text in the language of LangIndex; in French when LangIndex is none of the three, since no box may come without
/// words.
QString Texte(const Texte3 &texte);

/// Same for a text that takes the place of another one: a null string when LangIndex is none of the three.
QString TexteChoisi(const Texte3 &texte);

/// Gives the standard buttons of boxes and the file dialogs the language of LangIndex.
void AppliqueLangueSysteme();
