#include "platform/dialogues/FenetreAppelante.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

class RetourFenetre : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::Hide || evenement->spontaneous() ||
            QGuiApplication::applicationState() != Qt::ApplicationActive)
            return false;
        const auto *const dialogue = qobject_cast<QWidget *>(objet);
        if (dialogue == nullptr || !dialogue->isModal() || dialogue->parentWidget() == nullptr)
            return false;
        // Queued, so that a dialog below, which closes in the same moment, has gone too.
        const QPointer<QWidget> appelante = dialogue->parentWidget()->window();
        QTimer::singleShot(0, qApp, [appelante] {
            QWidget *const modale = QApplication::activeModalWidget();
            QWidget *const suivante = modale != nullptr ? modale : appelante.data();
            if (suivante != nullptr && suivante->isVisible())
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
