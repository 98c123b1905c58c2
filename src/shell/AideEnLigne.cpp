#include "shell/AideEnLigne.h"

#include "locale/Langue.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

constexpr Texte3 CheminAide{u"/Dorvanel/index.html", u"/Dorvanel/English/index.html", u"/Dorvanel/Espanol/index.html"};

} // namespace

void Mnu_AideEnLigne()
{
    const QString chemin = TexteChoisi(CheminAide);
    if (!chemin.isNull())
        QDesktopServices::openUrl(QUrl(QString::fromUtf16(AdresseSite) + chemin));
}
