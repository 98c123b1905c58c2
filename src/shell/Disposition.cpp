#include "shell/Disposition.h"

#include "shell/FrmPrinc.h"

#include <QSettings>

namespace {

const QString Organisation = QStringLiteral("Dorvanel");
const QString Registre = QStringLiteral("Disposition");
constexpr QLatin1String Fenetre("Fenetre");
constexpr QLatin1String Explorateur("LargeurExplorateur");

} // namespace

void RemetDisposition(FrmPrinc &fenetre)
{
    const QSettings registre(Organisation, Registre);
    fenetre.restoreGeometry(registre.value(Fenetre).toByteArray());
    fenetre.setLargeurExplorateur(registre.value(Explorateur, fenetre.LargeurExplorateur()).toInt());
}

void GardeDisposition(const FrmPrinc &fenetre)
{
    QSettings registre(Organisation, Registre);
    registre.setValue(Fenetre, fenetre.saveGeometry());
    registre.setValue(Explorateur, fenetre.LargeurExplorateur());
}
