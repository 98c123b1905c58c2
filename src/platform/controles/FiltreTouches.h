#pragma once

#include <QString>

class QLineEdit;
class QWidget;

// What may enter a text box. A key that may not is dropped, and what is selected in the box stays.

/// Keeps characters out that no name of a file or folder may hold: what a machine tool's control, or an older file
/// system, stumbles over. Of a pasted text the rest goes in; a line end or tab, which only a paste can bring, never
/// does.
void FiltreNom(QLineEdit *saisie);

/// Lets nothing but digits be typed. A pasted text goes in as it is.
void FiltreChiffres(QLineEdit *saisie);

/// Keeps a box to texts that match motif, a regular expression; a key or a pasted text that would break it is dropped.
void LimiteTouches(QLineEdit *saisie, const QString &motif);

/// The same for a box that takes a number with a point, which motif lets in. A comma that is pasted, or typed on the
/// keypad, becomes the point; one that is typed elsewhere is dropped, and avis tells why beside the box. What the
/// dialog does with the number goes through RetientVirgule().
void LimiteNombre(QLineEdit *saisie, const QString &motif, const QString &avis);

/// To be asked before the numbers of fenetre are taken. True once for a box in which a comma was dropped and digits may
/// have been typed on, blind: "0,4" reads 04. The box is then selected and its notice shown again, and nothing is
/// taken.
bool RetientVirgule(QWidget *fenetre);

/// Tells avis beside a box, with a beep: what was typed there is not taken.
void MontreAvis(QLineEdit *saisie, const QString &avis);

/// Has a click in a box select all of it, as the tabulator does: what is typed then takes its place. A box that is full
/// would take no key.
void SelectionneAuClic(QLineEdit *saisie);

/// Shows texte in a box, whole: where it is longer than what the operator may type, the box takes that much from now
/// on. A value of a file would otherwise be cut, and saved so.
void MontreEnEntier(QLineEdit *saisie, const QString &texte);
