#pragma once

#include "platform/dialogues/Boites.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <map>

/// An operator by script. He is told beforehand which boxes and dialogs will come, in order, and what to do in each;
/// then a command is given, and he works inside the modal loops that it runs.
///
/// It is a failure when a modal window comes that was not foretold (it is closed, so that nothing hangs), when one says
/// something else than foretold, when one never comes, and when a dialog stands still for too long.
class Operateur
{
public:
    using Condition = std::function<bool()>;
    using Geste = std::function<void(QWidget &fenetre)>;

    // What most boxes that ask bear: Yes and No, with No or Yes under Enter.
    static constexpr int Demande = Boite::Question | Boite::OuiNon | Boite::SecondBouton;
    static constexpr int DemandeSimple = Boite::Exclamation | Boite::OuiNon;

    /// The line that foretold something; a failure is reported there. Debian 12's clang lacks std::source_location.
    struct Lieu
    {
        const char *fichier;
        unsigned ligne;
        static constexpr Lieu Ici(const char *fichier = __builtin_FILE(), unsigned ligne = __builtin_LINE())
        {
            return {fichier, ligne};
        }
    };

    /// Who is told of failures. By default the process ends with the first one; the tests set another.
    struct Temoin
    {
        void (*echec)(const QString &message, const Lieu &ou);
        bool (*enEchec)(); ///< there has been one: every window is closed, so that all comes to its end
    };
    static Temoin temoin;

    Operateur();
    ~Operateur();
    Q_DISABLE_COPY_MOVE(Operateur)

    /// A "MsgBox" with this title, text (line ends CR LF or CR) and these flags (see platform/dialogues/Boites.h) is
    /// answered.
    void Repond(QAnyStringView titre, QAnyStringView texte, int drapeaux, QMessageBox::StandardButton bouton,
                Lieu ou = Lieu::Ici());
    /// The box, in French, of a transfer that an error has ended.
    void LitErreur(int numero, const QString &texte, Lieu ou = Lieu::Ici());
    /// Presses a button of a box of the system's own; a gesture for Fait.
    static Geste Clique(QMessageBox::StandardButton bouton);
    /// A file dialog ("CommonDialog"): the name is typed and taken.
    void Choisit(QAnyStringView chemin, Lieu ou = Lieu::Ici());
    /// The window of that objectName: a button is pressed, a text typed, the close box pressed, or anything is done,
    /// once the condition holds. The window may stay open.
    void Presse(QAnyStringView fenetre, QAnyStringView bouton, Condition quand = {}, Lieu ou = Lieu::Ici());
    void Saisit(QAnyStringView fenetre, QAnyStringView saisie, QAnyStringView texte, Lieu ou = Lieu::Ici());
    void Ferme(QAnyStringView fenetre, Condition quand = {}, Lieu ou = Lieu::Ici());
    void Fait(QAnyStringView fenetre, Geste geste, Condition quand = {}, Lieu ou = Lieu::Ici());
    /// From now on this is done, again and again, in each window of that objectName where nothing foretold is to be
    /// done at the moment.
    void Habitude(QAnyStringView fenetre, Geste geste);

    /// The same as gestures, in a window that stands open.
    static void Presse(const QWidget &fenetre, QAnyStringView bouton, Lieu ou = Lieu::Ici());
    static void Saisit(const QWidget &fenetre, QAnyStringView saisie, QAnyStringView texte);
    static void Choisit(QWidget &dialogue, QAnyStringView chemin);

    /// Opens the menus down to the entry and chooses it; a failure when it is disabled.
    static void Menu(QAnyStringView entree, Lieu ou = Lieu::Ici());
    /// True when the operator can choose the entry: it and all menus above it are enabled when they open.
    static bool Offre(QAnyStringView entree);
    /// Clicks a toolbar button, by its position.
    static void Barre(int position, Lieu ou = Lieu::Ici());
    /// What a label, button or box bears in the window that waits for the operator.
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
    QList<QPointer<QWidget>> m_connues; // windows that were foretold and may stand open
    QElapsedTimer m_dernierGeste;
    bool m_gesteEnRoute = false;
};
