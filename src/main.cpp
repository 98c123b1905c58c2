#include "locale/Langue.h"
#include "platform/MSComm.h"
#include "platform/Polices.h"
#include "shell/Chemins.h"
#include "shell/Demarrage.h"
#include "shell/FrmPrinc.h"
#include "shell/Menus.h"

#include <QApplication>

int main(int nombre, char *arguments[])
{
    const std::future<void> polices = LisPolices();
    QApplication application(nombre, arguments);
    QApplication::setApplicationName(QStringLiteral("Dorvanel"));
    QApplication::setApplicationDisplayName(QString()); // or each title would end in the program's name
    AppliqueLangueSysteme();

    polices.wait();
    FrmPrinc fenetre;
    fenetre.MSComm1->setDossierPorts(AjouteAntislash(DossierApplication()) + QStringLiteral("Ports"));
    Branche();
    // The operator has been asked for his text by then. Another window that stands open does not keep the program
    // alive.
    QObject::connect(&fenetre, &FrmPrinc::Form_Unload, &application, [] { QCoreApplication::exit(); });
    Form_Load();
    fenetre.show();
    return QApplication::exec();
}
