#include "shell/Disposition.h"

#include "shell/FrmPrinc.h"

#include <QScreen>
#include <QSettings>
#include <QStyle>

#include <algorithm>

namespace {

const QString Organisation = QStringLiteral("Dorvanel");
const QString Registre = QStringLiteral("Disposition");
constexpr QLatin1String Fenetre("Fenetre");
constexpr QLatin1String Explorateur("LargeurExplorateur");

/// The part of the screen that the window's content can take.
QRect PlaceLibre(const FrmPrinc &fenetre)
{
    return fenetre.screen()->availableGeometry().adjusted(0, fenetre.style()->pixelMetric(QStyle::PM_TitleBarHeight), 0,
                                                          0);
}

/// Brings a window that sticks out of its screen wholly onto it; for a maximised window the place that it will return
/// to. The screen may have become smaller since the last run, and Qt itself only moves a window of which nothing could
/// be seen.
void RentreDansEcran(FrmPrinc &fenetre)
{
    const Qt::WindowStates etat = fenetre.windowState();
    fenetre.setWindowState(Qt::WindowNoState);
    QRect place = fenetre.geometry();
    if (!fenetre.screen()->availableGeometry().contains(place)) {
        const QRect libre = PlaceLibre(fenetre);
        place.setSize(place.size().boundedTo(libre.size()));
        place.moveBottomRight({std::min(place.right(), libre.right()), std::min(place.bottom(), libre.bottom())});
        place.moveTopLeft({std::max(place.left(), libre.left()), std::max(place.top(), libre.top())});
        fenetre.setGeometry(place);
    }
    fenetre.setWindowState(etat);
}

} // namespace

void RemetDisposition(FrmPrinc &fenetre)
{
    const QSettings registre(Organisation, Registre);
    // Qt would read what is missing of a truncated value as zeros, so the length is compared.
    const QByteArray place = registre.value(Fenetre).toByteArray();
    if (place.size() == fenetre.saveGeometry().size() && fenetre.restoreGeometry(place))
        RentreDansEcran(fenetre);
    else // the desktop chooses the place
        fenetre.resize(fenetre.size().boundedTo(PlaceLibre(fenetre).size()));
    fenetre.setLargeurExplorateur(registre.value(Explorateur, fenetre.LargeurExplorateur()).toInt());
}

void GardeDisposition(const FrmPrinc &fenetre)
{
    QSettings registre(Organisation, Registre);
    registre.setValue(Fenetre, fenetre.saveGeometry());
    registre.setValue(Explorateur, fenetre.LargeurExplorateur());
}
