#include "platform/controles/EntreeOptions.h"

#include <QRadioButton>

namespace {

void DonneEntree(const QRadioButton *choisi)
{
    const auto options = choisi->parentWidget()->findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly);
    for (QRadioButton *const option : options)
        option->setFocusPolicy(option == choisi ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

void EntreAuChoix(QWidget *fenetre)
{
    const auto options = fenetre->findChildren<QRadioButton *>();
    for (const QRadioButton *const option : options) {
        if (option->isChecked())
            DonneEntree(option);
        QObject::connect(option, &QRadioButton::toggled, option, [option](bool choisi) {
            if (choisi)
                DonneEntree(option);
        });
    }
}
