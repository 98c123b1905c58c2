#include "platform/controles/Molette.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace {

class Molette : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        const bool roule = evenement->type() == QEvent::Wheel;
        if (!roule && evenement->type() != QEvent::Polish)
            return false;
        if (qobject_cast<QComboBox *>(objet) == nullptr && qobject_cast<QAbstractSpinBox *>(objet) == nullptr)
            return false;
        auto &controle = *static_cast<QWidget *>(objet);
        if (!roule && controle.focusPolicy() == Qt::WheelFocus) // otherwise the first turn would give it the focus
            controle.setFocusPolicy(Qt::StrongFocus);
        if (!roule || controle.hasFocus())
            return false;
        evenement->accept(); // otherwise the area around it would scroll
        return true;
    }
};

} // namespace

void BrancheMolette(QObject *proprietaire)
{
    qApp->installEventFilter(new Molette(proprietaire));
}
