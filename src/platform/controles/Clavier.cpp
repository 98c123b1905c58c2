#include "platform/controles/Clavier.h"

#include "platform/base/Touches.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QSet>

#include <chrono>

namespace {

using Temps = std::chrono::milliseconds;

/// How long an operator who strokes twice takes for it, and how long he needs to see that a box has come.
constexpr Temps Repos(400);
/// A release and a stroke that lie closer together are one repetition of a key held down, which the system has not
/// marked as such. No finger is as fast.
constexpr quint64 Jumelles = 30; // milliseconds, by the clock of the events

/// Set at a window that holds keys back: from when on it takes those that are pressed anew.
constexpr const char *Reprise = "repriseClavier";

/// The operator's hands, as the keyboard tells of them.
struct Mains
{
    QSet<quint32> tenues;        ///< keys held down
    Temps coup{-Repos};          ///< of the last stroke
    quint64 instantCoup = 0;     ///< the same by the clock of the events
    quint32 relachee = 0;        ///< the key released last
    quint64 instantRelachee = 0; ///< by the clock of the events
    bool repetee = false;        ///< the key that is on its way is a repetition
};
Mains mains;

Temps Maintenant()
{
    return std::chrono::duration_cast<Temps>(std::chrono::steady_clock::now().time_since_epoch());
}

/// The key itself where the system tells: with Shift it has another meaning, also between stroke and release.
quint32 Touche(const QKeyEvent &touche)
{
    return touche.nativeScanCode() != 0 ? touche.nativeScanCode() : static_cast<quint32>(touche.key());
}

/// Each key comes several times: to the window, to the control, to what lies around it, as a shortcut and as a key. A
/// release that went to no window of ours leaves its key held here: the next stroke has another time.
void SuitCoup(const QKeyEvent &evenement)
{
    const quint32 touche = Touche(evenement);
    const bool memeInstant = evenement.timestamp() == 0 || evenement.timestamp() == mains.instantCoup;
    if (evenement.isAutoRepeat()) {
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

/// What answers or closes a dialog.
bool Repond(const QKeyEvent &touche)
{
    return EstEntree(touche) || touche.key() == Qt::Key_Escape || touche.key() == Qt::Key_Space;
}

/// Whether a window has to leave a key unheard.
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

/// A button that does something: one that only chooses leaves Enter to the default button.
QAbstractButton *Bouton(QWidget &cible)
{
    const bool choisit = cible.inherits("QCheckBox") || cible.inherits("QRadioButton");
    return choisit ? nullptr : qobject_cast<QAbstractButton *>(&cible);
}

/// True when a key that has come to a control goes no further.
bool Retenue(QWidget &cible, QKeyEvent &touche)
{
    if (Refuse(*cible.window(), cible, touche)) {
        touche.accept(); // a shortcut that is refused comes once more, as a key
        return true;
    }
    QAbstractButton *const bouton = Bouton(cible);
    if (bouton == nullptr || qobject_cast<QDialog *>(cible.window()) == nullptr || touche.type() != QEvent::KeyPress ||
        !EstEntree(touche))
        return false;
    bouton->click();
    return true;
}

/// No menu, list or tool tip, which are windows of their own too.
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
        case QEvent::MouseButtonPress: // whoever clicks into a window has seen it
            if (objet->isWidgetType())
                static_cast<QWidget *>(objet)->window()->setProperty(Reprise, QVariant());
            return false;
        case QEvent::KeyRelease:
            SuitRelache(*static_cast<QKeyEvent *>(evenement));
            return false;
        case QEvent::ApplicationStateChange: // what is released in another program is not told of
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
    qApp->installEventFilter(new Clavier(proprietaire));
}

void RetientTouches(QWidget *fenetre)
{
    if (!mains.tenues.isEmpty() || Maintenant() - mains.coup < Repos)
        fenetre->setProperty(Reprise, QVariant::fromValue<qlonglong>((Maintenant() + Repos).count()));
}
