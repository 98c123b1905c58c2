#pragma once

#include "platform/Boites.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <source_location>

/// The operator of a test. It is told beforehand which boxes and dialogs will come, in order, and what to do in each;
/// then the test gives a command, and the operator works inside the modal loops that the command runs.
///
/// The test fails on a modal window that was not foretold (it is closed, so that nothing hangs), on one that says
/// something else than foretold, on one that never came, and when a dialog stands still for too long.
class Operateur
{
public:
    using Condition = std::function<bool()>;
    using Geste = std::function<void(QWidget &fenetre)>;

    // What most boxes that ask bear: Yes and No, with No or Yes under Enter.
    static constexpr int Demande = Boite::Question | Boite::OuiNon | Boite::SecondBouton;
    static constexpr int DemandeSimple = Boite::Exclamation | Boite::OuiNon;

    /// The line of the test that foretold something; a failure is reported there.
    using Lieu = std::source_location;

    Operateur();
    ~Operateur();
    Q_DISABLE_COPY_MOVE(Operateur)

    /// A "MsgBox" with this title, text (line ends CR LF or CR) and these flags (see platform/Boites.h) is answered.
    void Repond(QAnyStringView titre, QAnyStringView texte, int drapeaux, QMessageBox::StandardButton bouton,
                Lieu ou = Lieu::current());
    /// The box, in French, of a transfer that an error has ended.
    void LitErreur(int numero, const QString &texte, Lieu ou = Lieu::current());
    /// Presses a button of a box of the system's own; a gesture for Fait.
    static Geste Clique(QMessageBox::StandardButton bouton);
    /// A file dialog ("CommonDialog"): the name is typed and taken.
    void Choisit(QAnyStringView chemin, Lieu ou = Lieu::current());
    /// The window of that objectName: a button is pressed, a text typed, the close box pressed, or anything is done,
    /// once the condition holds. The window may stay open.
    void Presse(QAnyStringView fenetre, QAnyStringView bouton, Condition quand = {}, Lieu ou = Lieu::current());
    void Saisit(QAnyStringView fenetre, QAnyStringView saisie, QAnyStringView texte, Lieu ou = Lieu::current());
    void Ferme(QAnyStringView fenetre, Condition quand = {}, Lieu ou = Lieu::current());
    void Fait(QAnyStringView fenetre, Geste geste, Condition quand = {}, Lieu ou = Lieu::current());

    /// Opens the menus down to the entry and chooses it; the test fails when it is disabled.
    static void Menu(QAnyStringView entree, Lieu ou = Lieu::current());
    /// True when the operator can choose the entry: it and all menus above it are enabled when they open.
    static bool Offre(QAnyStringView entree);
    /// Clicks a toolbar button, by its position.
    static void Barre(int position, Lieu ou = Lieu::current());
    /// What a label, button or box bears in the window that waits for the operator.
    static QString Lu(QAnyStringView controle);

private:
    struct Attente
    {
        QString fenetre;
        Condition quand;
        Geste geste;
        Lieu ou;
    };

    void Regarde();
    void Agit(QWidget *fenetre);
    bool Annoncee(const QWidget &fenetre) const;
    void Etonne(QWidget *fenetre);

    QTimer m_yeux;
    std::deque<Attente> m_attentes;
    QList<QPointer<QWidget>> m_connues; // windows that were foretold and may stand open
    QElapsedTimer m_dernierGeste;
    bool m_gesteEnRoute = false;
    bool m_abandon = false; // the test has failed: every window is closed, so that it ends
};
