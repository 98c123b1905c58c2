#include "platform/controles/UnClic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

namespace {

class PremierClic : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::MouseButtonPress && evenement->type() != QEvent::MouseButtonDblClick)
            return false;
        // Qt reports the third of three quick clicks as a new single click.
        const quint64 instant = static_cast<QMouseEvent *>(evenement)->timestamp();
        const auto ensemble = static_cast<quint64>(QApplication::doubleClickInterval());
        const bool suit = m_dernier != 0 && instant - m_dernier < ensemble;
        m_dernier = instant;
        return suit || evenement->type() == QEvent::MouseButtonDblClick;
    }

private:
    quint64 m_dernier = 0; // time stamp of the last click, in milliseconds
};

} // namespace

void UnClic(QAbstractButton *bouton)
{
    bouton->installEventFilter(new PremierClic(bouton));
}
