#pragma once

#include "platform/dialogues/Boites.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <map>

/// An operator by script. The test first says which boxes and dialogs will come, in their order, and what to do in
/// each. Then it gives a command, and the operator acts inside the modal event loops that the command runs.
///
/// It is a failure when a modal window comes unexpectedly (it is closed, so that nothing hangs), when a window shows
/// other words than expected, when an expected one never comes, and when nothing happens in a dialog for too long.
class Operateur
{
public:
    using Condition = std::function<bool()>;
    using Geste = std::function<void(QWidget &fenetre)>;

    // Flags of most questions: Yes and No, with No or Yes as the default button.
    static constexpr int Demande = Boite::Question | Boite::OuiNon | Boite::SecondBouton;
    static constexpr int DemandeSimple = Boite::Exclamation | Boite::OuiNon;

    /// The source line that a failure is reported at: where the action was expected. Debian 12's clang lacks
    /// std::source_location.
    struct Lieu
    {
        const char *fichier;
        unsigned ligne;
        static constexpr Lieu Ici(const char *fichier = __builtin_FILE(), unsigned ligne = __builtin_LINE())
        {
            return {fichier, ligne};
        }
    };

    /// Handles failures. By default the first one ends the process; the tests install another handler.
    struct Temoin
    {
        void (*echec)(const QString &message, const Lieu &ou);
        bool (*enEchec)(); ///< true after a failure: every window is then closed, so that the test ends
    };
    static Temoin temoin;

    Operateur();
    ~Operateur();
    Q_DISABLE_COPY_MOVE(Operateur)

    /// Expects a "MsgBox" with this title, text (line ends CR LF or CR) and these flags (see
    /// platform/dialogues/Boites.h), and presses bouton in it.
    void Repond(QAnyStringView titre, QAnyStringView texte, int drapeaux, QMessageBox::StandardButton bouton,
                Lieu ou = Lieu::Ici());
    /// Expects the French box of a transfer that an error has ended, and confirms it.
    void LitErreur(int numero, const QString &texte, Lieu ou = Lieu::Ici());
    /// An action for Fait(): presses a button in a box of the toolkit.
    static Geste Clique(QMessageBox::StandardButton bouton);
    /// Expects a file dialog ("CommonDialog"), and enters and confirms the name.
    void Choisit(QAnyStringView chemin, Lieu ou = Lieu::Ici());
    /// Expects the window of that objectName and, once the condition is met, presses a button, types a text, presses
    /// the close box, or does anything else. The window may stay open.
    void Presse(QAnyStringView fenetre, QAnyStringView bouton, Condition quand = {}, Lieu ou = Lieu::Ici());
    void Saisit(QAnyStringView fenetre, QAnyStringView saisie, QAnyStringView texte, Lieu ou = Lieu::Ici());
    void Ferme(QAnyStringView fenetre, Condition quand = {}, Lieu ou = Lieu::Ici());
    void Fait(QAnyStringView fenetre, Geste geste, Condition quand = {}, Lieu ou = Lieu::Ici());
    /// From now on does the action repeatedly in each window of that objectName, whenever no expected action can be
    /// done there.
    void Habitude(QAnyStringView fenetre, Geste geste);

    /// The same actions, at once, in an open window.
    static void Presse(const QWidget &fenetre, QAnyStringView bouton, Lieu ou = Lieu::Ici());
    static void Saisit(const QWidget &fenetre, QAnyStringView saisie, QAnyStringView texte);
    static void Choisit(QWidget &dialogue, QAnyStringView chemin);

    /// Opens the menus down to the entry and chooses it. A disabled entry is a failure.
    static void Menu(QAnyStringView entree, Lieu ou = Lieu::Ici());
    /// True when the operator can choose the entry: it and all menus above it are enabled when opened.
    static bool Offre(QAnyStringView entree);
    /// Clicks a toolbar button, by its position.
    static void Barre(int position, Lieu ou = Lieu::Ici());
    /// The text of a label, button or box in the window that waits for the operator.
    static QString Lu(QAnyStringView controle);

private:
    struct BoiteAttendue
    {
        QString fenetre;
        Condition quand;
        Geste geste;
        Lieu ou;
    };

    void Regarde();
    void Agit(QWidget &fenetre);
    bool AgitCommePredit(QWidget &fenetre);
    bool Annoncee(const QWidget &fenetre) const;
    void Etonne(QWidget &fenetre);

    QTimer m_yeux;
    std::deque<BoiteAttendue> m_attentes;
    std::map<QString, Geste> m_habitudes;
    QList<QPointer<QWidget>> m_connues; // expected windows that may still be open
    QElapsedTimer m_dernierGeste;
    bool m_gesteEnRoute = false;
};
