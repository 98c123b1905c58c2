#include "locale/Langue.h"
#include "platform/MSComm.h"
#include "shell/Chemins.h"
#include "shell/Demarrage.h"
#include "shell/Document.h"
#include "shell/Edition.h"
#include "shell/FrmPrinc.h"
#include "shell/Menus.h"

#include <QApplication>

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    QApplication::setApplicationName(QStringLiteral("Dorvanel"));
    QApplication::setApplicationDisplayName(QString());
    AppliqueLangueSysteme();

    FrmPrinc fenetre;
    QApplication::setWindowIcon(fenetre.windowIcon());
    fenetre.MSComm1->setDossierPorts(AjouteAntislash(DossierApplication()) + QStringLiteral("Ports"));
    BrancheDocument();
    BrancheEdition();
    BrancheMenus();
    Form_Load();
    fenetre.show();
    return QApplication::exec();
}
