#pragma once

#include <QWidget>

struct Texte3;

/// Writes the captions of LangIndex to every open window. In French it does nothing: the windows are made in French, so
/// it only goes away from French, never back to it. It also turns the standard buttons to the language, and each window
/// hears of it by a LanguageChange event.
void AppliqueLangue();

/// Checks the entry of LangIndex in the language menu and names the three languages in that language.
void MontreLangue();

/// Same for one window, which calls it as it is made. fenetre: a window whose objectName is a key of the table.
void AppliqueLegendes(QWidget *fenetre);

/// Gives a control without a caption of its own (a toolbar button, a button with a picture) its tool tip, which is also
/// its name for an assistive program. Nothing for a null text.
void PoseBulle(QObject *controle, const QString &texte);

/// Shows a piece of data in a label, or in a window's title, in the place of its caption: from then on the captions of
/// a language leave it alone.
void MontreDonnee(QWidget *controle, const QString &donnee);

/// Writes texte and then suite to what a label or button bears, or a window's title; nothing when LangIndex chooses no
/// text.
void PoseTexte(QWidget *controle, const Texte3 &texte, const QString &suite = QString());
