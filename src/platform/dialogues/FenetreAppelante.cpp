#include "platform/dialogues/FenetreAppelante.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

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
