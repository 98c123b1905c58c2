#pragma once

#include <QString>

/// Language of the operator: 0 French, 1 English, 2 Spanish. It lives for the run and in "Dorvanel.ini". Any other
/// value, which only a damaged file brings, chooses no text: what stands on the screen stays.
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

/// The text in the language of LangIndex; a null string when LangIndex is none of the three.
QString Texte(const Texte3 &texte);

/// Gives the standard buttons of boxes and the file dialogs the language of LangIndex.
void AppliqueLangueSysteme();
