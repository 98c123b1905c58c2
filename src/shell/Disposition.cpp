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
    // Of a cut one Qt would take what is missing for zeros.
    const QByteArray place = registre.value(Fenetre).toByteArray();
    if (place.size() == fenetre.saveGeometry().size())
        fenetre.restoreGeometry(place);
    fenetre.setLargeurExplorateur(registre.value(Explorateur, fenetre.LargeurExplorateur()).toInt());
}

void GardeDisposition(const FrmPrinc &fenetre)
{
    QSettings registre(Organisation, Registre);
    registre.setValue(Fenetre, fenetre.saveGeometry());
    registre.setValue(Explorateur, fenetre.LargeurExplorateur());
}
