#pragma once

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

// Message and input boxes. A box is modal: while it is open the event loop runs and the routine that shows it waits.
// DemandeSansAttendre() is the exception. The standard buttons are in the language of the translator that the program
// has installed.

/// Flags of a message box, added up: buttons, icon, default button.
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
/// details: a text too long for a box, which a further button shows and hides below; "" for none.
Reponse MsgBox(const QString &texte, int drapeaux, const QString &titre, const QString &details = {});

/// True when the operator answers Yes to a box with Yes and No. drapeaux: icon and default button.
bool Confirme(const QString &texte, int drapeaux, const QString &titre);

/// Asks like Confirme() in a box over fenetre, but returns at once: the running routine goes on while the operator
/// reads. siOui is called when the operator answers Yes. Only one such question stands at a time; a further one is not
/// asked. The question goes away unanswered with fenetre, by RetireDemande(), and when MsgBox() or Confirme() shows a
/// box. What comes to light then takes no key at first, since the operator's answer may be on its way.
void DemandeSansAttendre(QWidget &fenetre, const QString &texte, int drapeaux, const QString &titre,
                         const std::function<void()> &siOui);
/// Takes the question of DemandeSansAttendre() away, if one stands. It counts as a No.
void RetireDemande();

/// Answers instead of MsgBox() and InputBox(), with their parameters, for a fuzzer or a test that reads many boxes.
/// When a function is empty, as in the program, the box is shown.
struct Suppleant
{
    std::function<Reponse(const QString &texte, int drapeaux, const QString &titre)> message;
    std::function<QString(const QString &invite, const QString &titre, const QString &valeur)> saisie;
};
Suppleant &SuppleantBoites();

/// Makes a box, before it is shown, wide enough for its title and its lines, up to a limit. By itself the toolkit cuts
/// the title and breaks the lines.
void Elargit(QMessageBox &boite);

/// Asks for a text in a box named "InputBox". invite: the prompt, with line ends as in MsgBox; valeur: the text first
/// offered. Typing replaces the offered text, or only the last name of an offered path. Cancelling gives "".
QString InputBox(const QString &invite, const QString &titre, const QString &valeur = {});

/// texte with its line ends (CR LF or CR) made into LF, which is what a control shows.
QString PourAffichage(const QString &texte);
