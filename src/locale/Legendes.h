#pragma once

#include <QWidget>

struct Texte3;

/// Puts every open window and the standard buttons into the language of LangIndex, and sends each window a
/// LanguageChange event. Captions can change away from French but not back: windows are made in French, and there are
/// no French rows in the tables.
void AppliqueLangue();

/// Checks the entry of LangIndex in the language menu and names the three languages in that language.
void MontreLangue();

/// Writes the captions of LangIndex to one window, which calls this in its constructor. fenetre: its objectName is a
/// key of the table of captions.
void AppliqueLegendes(QWidget *fenetre);

/// Gives a control without a caption (a toolbar button, a button with a picture) a tool tip, which is also its
/// accessible name. Does nothing for a null text.
void PoseBulle(QObject *controle, const QString &texte);

/// Shows donnee in a label or in a window's title, in place of its caption. From then on a change of language leaves
/// that text alone.
void MontreDonnee(QWidget *controle, const QString &donnee);

/// Sets the text of a label or button, or the title of a window, to texte followed by suite. Does nothing when
/// LangIndex is none of the three languages.
void PoseTexte(QWidget *controle, const Texte3 &texte, const QString &suite = QString());
