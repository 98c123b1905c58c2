#include "platform/controles/Clavier.h"

#include "platform/base/Horloge.h"
#include "platform/base/Touches.h"
#include "platform/controles/Repetition.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QSet>

namespace {

using Temps = std::chrono::milliseconds;

/// The time in which an operator may press a key twice by mistake, and the time that he needs to see a new box.
constexpr Temps Repos(400);
/// Some systems report the repetition of a key held down as a release and a press. No finger presses again within this
/// time.
constexpr quint64 Jumelles = 30; // milliseconds between the time stamps of the events

/// Property of a window that holds keys back: the time from which it takes newly pressed keys.
constexpr const char *Reprise = "repriseClavier";

/// What is known of the operator's keys.
struct Mains
{
    QSet<quint32> tenues;        ///< keys held down
    Temps coup{-Repos};          ///< when a key was last pressed
    quint64 instantCoup = 0;     ///< time stamp of that event
    quint32 relachee = 0;        ///< the key released last
    quint64 instantRelachee = 0; ///< time stamp of that event
    bool repetee = false;        ///< the key event under way is a repetition
};
Mains mains;

Temps Maintenant()
{
    return std::chrono::duration_cast<Temps>(Horloge::Maintenant().time_since_epoch());
}

/// Identifies a key by its scan code where the system gives one. Its meaning may change between press and release, by
/// Shift.
quint32 Touche(const QKeyEvent &touche)
{
    return touche.nativeScanCode() != 0 ? touche.nativeScanCode() : static_cast<quint32>(touche.key());
}

/// Notes a key press. One press arrives several times: at the window, at the control and its parents, as a shortcut and
/// as a key; its time stamp stays the same. A key whose release went to another program is still noted as held, but its
/// next press has another time stamp.
void SuitCoup(const QKeyEvent &evenement)
{
    const quint32 touche = Touche(evenement);
    const bool memeInstant = evenement.timestamp() == 0 || evenement.timestamp() == mains.instantCoup;
    if (EstRepetition(evenement)) {
        mains.repetee = true;
    } else if (!mains.tenues.contains(touche) || !memeInstant) {
        mains.instantCoup = evenement.timestamp();
        mains.repetee = touche == mains.relachee && evenement.timestamp() != 0 &&
                        evenement.timestamp() - mains.instantRelachee < Jumelles;
        mains.coup = Maintenant();
    }
    mains.tenues << touche;
}

void SuitRelache(const QKeyEvent &evenement)
{
    if (evenement.isAutoRepeat())
        return;
    mains.relachee = Touche(evenement);
    mains.instantRelachee = evenement.timestamp();
    mains.tenues.remove(mains.relachee);
}

bool Ecrit(const QWidget &cible, const QKeyEvent &touche)
{
    return cible.testAttribute(Qt::WA_InputMethodEnabled) && DonneUnCaractere(touche) && !EstEntree(touche);
}

/// True for a key that answers or closes a dialog.
bool Repond(const QKeyEvent &touche)
{
    return EstEntree(touche) || touche.key() == Qt::Key_Escape || touche.key() == Qt::Key_Space;
}

/// True when the window must ignore the key.
bool Refuse(QWidget &fenetre, const QWidget &cible, const QKeyEvent &touche)
{
    const bool dialogue = qobject_cast<QDialog *>(&fenetre) != nullptr;
    const QVariant reprise = fenetre.property(Reprise);
    if (!reprise.isValid())
        return dialogue && mains.repetee && Repond(touche) && !Ecrit(cible, touche);
    if (mains.repetee)
        return true;
    if (Maintenant() < Temps(reprise.toLongLong()) && (dialogue || Repond(touche)) && !Ecrit(cible, touche))
        return true;
    fenetre.setProperty(Reprise, QVariant());
    return false;
}

/// The button that Enter presses. On a check box or radio button Enter presses the dialog's default button instead.
QAbstractButton *Bouton(QWidget &cible)
{
    const bool choisit = cible.inherits("QCheckBox") || cible.inherits("QRadioButton");
    return choisit ? nullptr : qobject_cast<QAbstractButton *>(&cible);
}

/// Handles a key that arrives at a control. True when it goes no further.
bool Retenue(QWidget &cible, QKeyEvent &touche)
{
    if (Refuse(*cible.window(), cible, touche)) {
        touche.accept(); // so that a refused shortcut comes again as a key
        return true;
    }
    QAbstractButton *const bouton = Bouton(cible);
    if (bouton == nullptr || qobject_cast<QDialog *>(cible.window()) == nullptr || touche.type() != QEvent::KeyPress ||
        !EstEntree(touche))
        return false;
    bouton->click();
    return true;
}

/// True for a window or dialog. Menus, lists and tool tips are windows too, of other types.
bool EstFenetre(const QObject *objet)
{
    const auto *const fenetre = qobject_cast<const QWidget *>(objet);
    return fenetre != nullptr && (fenetre->windowType() == Qt::Window || fenetre->windowType() == Qt::Dialog);
}

class Clavier : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        switch (evenement->type()) {
        case QEvent::Show:
        case QEvent::WindowActivate:
            if (EstFenetre(objet))
                RetientTouches(static_cast<QWidget *>(objet));
            return false;
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            auto &touche = *static_cast<QKeyEvent *>(evenement);
            SuitCoup(touche);
            return objet->isWidgetType() && Retenue(*static_cast<QWidget *>(objet), touche);
        }
        case QEvent::MouseButtonPress: // an operator who clicks into a window has seen it
            if (objet->isWidgetType())
                static_cast<QWidget *>(objet)->window()->setProperty(Reprise, QVariant());
            return false;
        case QEvent::KeyRelease:
            SuitRelache(*static_cast<QKeyEvent *>(evenement));
            return false;
        case QEvent::ApplicationStateChange: // releases in another program are not reported
            mains.tenues.clear();
            return false;
        default:
            return false;
        }
    }
};

} // namespace

void BrancheClavier(QObject *proprietaire)
{
    mains = {};
    GuetteRepetitions();
    qApp->installEventFilter(new Clavier(proprietaire));
}

void RetientTouches(QWidget *fenetre)
{
    if (!mains.tenues.isEmpty() || Maintenant() - mains.coup < Repos)
        RetientTouchesSansCoup(fenetre);
}

void RetientTouchesSansCoup(QWidget *fenetre)
{
    fenetre->setProperty(Reprise, QVariant::fromValue<qlonglong>((Maintenant() + Repos).count()));
}
