#pragma once

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

// Message and input boxes. A box is modal; while it is open the event loop runs, and the routine that shows it stands
// still, but for DemandeSansAttendre(). Its standard buttons stand in the language of the translator that the program
// has installed.

/// What a message box bears: buttons, icon and default button are added up.
namespace Boite {
constexpr int OuiNon = 4;         ///< Yes and No instead of OK
constexpr int Critique = 16;      ///< critical icon
constexpr int Question = 32;      ///< question icon
constexpr int Exclamation = 48;   ///< exclamation icon
constexpr int Information = 64;   ///< information icon
constexpr int SecondBouton = 256; ///< the second button is the default one
constexpr int ChoixExige = 1024;  ///< Escape and the close button answer nothing: one of the buttons has to
} // namespace Boite

enum class Reponse { Ok, Oui, Non };

/// Shows texte in a box named "MsgBox" and waits for the answer. drapeaux: constants of Boite, added up.
/// A line end in texte is CR LF or a single CR. Escape and the close button answer No, or OK where there is no No.
Reponse MsgBox(const QString &texte, int drapeaux, const QString &titre);

/// True when the operator answers Yes to a box with Yes and No. drapeaux: icon and default button.
bool Confirme(const QString &texte, int drapeaux, const QString &titre);

/// Asks what Confirme() asks, over fenetre, and returns at once: what runs goes on while the operator reads. siOui is
/// called when he answers Yes. One such question stands at a time; a further one is not asked. It goes unanswered with
/// fenetre, by RetireDemande(), and when a box of the other kind comes: what it asked about has moved on.
void DemandeSansAttendre(QWidget &fenetre, const QString &texte, int drapeaux, const QString &titre,
                         const std::function<void()> &siOui);
void RetireDemande();

/// Answers in place of MsgBox() and InputBox(), with their parameters, for a fuzzer or a test that reads many boxes.
/// Where a function is empty, as in the program, the box is shown.
struct Suppleant
{
    std::function<Reponse(const QString &texte, int drapeaux, const QString &titre)> message;
    std::function<QString(const QString &invite, const QString &titre, const QString &valeur)> saisie;
};
Suppleant &SuppleantBoites();

/// Gives a box, before it is shown, the width of its title and of its lines, as far as the screen has it: the toolkit
/// cuts the one and breaks the others.
void Elargit(QMessageBox &boite);

/// Asks for a text in a box named "InputBox". invite: the prompt, with line ends as in MsgBox; valeur: the text first
/// offered. Typing replaces it, or of a path only the last name. Cancelling gives "".
QString InputBox(const QString &invite, const QString &titre, const QString &valeur = {});

/// Text with the line ends of a label or box (CR LF or CR) made into those that a control shows.
QString PourAffichage(const QString &texte);
