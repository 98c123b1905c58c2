#include "platform/dialogues/FenetreAppelante.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

/// Whether the operator works in this program. One of the system's own dialogs had the keyboard, unknown to the
/// toolkit, and only he closes it.
bool Actif(const QWidget &dialogue)
{
    return dialogue.testAttribute(Qt::WA_DontShowOnScreen) ||
           QGuiApplication::applicationState() == Qt::ApplicationActive;
}

class RetourFenetre : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::Hide || evenement->spontaneous())
            return false;
        const auto *const dialogue = qobject_cast<QWidget *>(objet);
        if (dialogue == nullptr || !dialogue->isModal() || dialogue->parentWidget() == nullptr || !Actif(*dialogue))
            return false;
        // Queued, so that a dialog below, which closes in the same moment, has gone too.
        QWidget *const appelante = dialogue->parentWidget()->window();
        QTimer::singleShot(0, appelante, [appelante] {
            QWidget *const modale = QApplication::activeModalWidget();
            QWidget *const suivante = modale != nullptr ? modale : appelante;
            if (suivante->isVisible())
                suivante->activateWindow();
        });
        return false;
    }
};

} // namespace

QWidget *FenetreAppelante()
{
    if (QWidget *const modale = QApplication::activeModalWidget())
        return modale;
    if (QWidget *const active = QApplication::activeWindow())
        return active;
    const QWidgetList fenetres = QApplication::topLevelWidgets();
    const auto montree = std::find_if(fenetres.begin(), fenetres.end(), [](const QWidget *fenetre) {
        const bool ordinaire = fenetre->windowType() == Qt::Window || fenetre->windowType() == Qt::Dialog;
        return ordinaire && fenetre->isVisible();
    });
    return montree == fenetres.end() ? nullptr : *montree;
}

void RendLeClavier(QObject *proprietaire)
{
    qApp->installEventFilter(new RetourFenetre(proprietaire));
}
