#pragma once

#include <QString>

/// Language of the operator: 0 French, 1 English, 2 Spanish. It is kept in "Dorvanel.ini". Any other value comes from a
/// damaged file and chooses no language: captions stay as they are, and boxes are in French.
extern int LangIndex;

/// Value of LangIndex when the settings file holds no number there.
constexpr int LangAucune = -1;

/// A text for the operator in the three languages.
struct Texte3
{
    const char16_t *francais;
    const char16_t *anglais;
    const char16_t *espagnol;
};

/// The text in the language of LangIndex, or in French when LangIndex is none of the three: a box must not be empty.
QString Texte(const Texte3 &texte);

/// Same, for a text that replaces one on the screen: a null string when LangIndex is none of the three.
QString TexteChoisi(const Texte3 &texte);

/// Puts the toolkit's own texts (standard buttons, file dialogs) into the language of LangIndex.
void AppliqueLangueSysteme();
