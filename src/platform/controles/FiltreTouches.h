#pragma once

#include <QString>

class QLineEdit;
class QWidget;

// Filters for the input of text boxes. A forbidden key is dropped, and the selection in the box stays.

/// Keeps out characters that a file or folder name must not contain, because controls of machine tools or older file
/// systems do not accept them. They are removed from a pasted text, as are line ends and tabs.
void FiltreNom(QLineEdit *saisie);

/// Allows only digits to be typed. A pasted text enters unchanged.
void FiltreChiffres(QLineEdit *saisie);

/// Limits a box to texts that match the regular expression motif. A key or a pasted text that does not fit is dropped.
void LimiteTouches(QLineEdit *saisie, const QString &motif);

/// Same for a box that takes a number with a decimal point, which motif must allow. A comma that is pasted or typed on
/// the keypad becomes a point. Any other typed comma is dropped, and avis is shown beside the box. The dialog must call
/// RetientVirgule() before it uses the number.
void LimiteNombre(QLineEdit *saisie, const QString &motif, const QString &avis);

/// Writes a number into such a box in place of what was typed there.
void PoseNombre(QLineEdit *saisie, const QString &nombre);

/// To be called before the numbers in fenetre are used. Returns the notice of a visible box in which a comma was
/// dropped and not corrected, "" if there is none. The operator may have typed on without looking, so that "0,4" now
/// reads 04. The text of that box is then selected; the caller shows the notice and must not use the numbers.
QString RetientVirgule(const QWidget *fenetre);

/// Shows avis beside a box, with a beep, to say that the input was not accepted. RetireAvis() takes it away before its
/// time, once the input has been corrected.
void MontreAvis(QLineEdit *saisie, const QString &avis);
void RetireAvis();

/// Makes a click in a box select all of its text, as Tab does, so that typing replaces it. A full box would take no key
/// otherwise.
void SelectionneAuClic(QLineEdit *saisie);

/// Shows the whole of texte in a box. When texte is longer than the box allows, its maximum length grows: otherwise a
/// value from a file would be cut and later saved incomplete.
void MontreEnEntier(QLineEdit *saisie, const QString &texte);
