#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "platform/base/Console.h"
#include "platform/base/FinDemandee.h"
#include "platform/controles/Polices.h"
#include "platform/controles/StyleContraste.h"
#include "platform/serie/MSComm.h"
#include "programme/Demarrage.h"
#include "programme/Menus.h"
#include "programme/OuvreFichier.h"
#include "shell/Disposition.h"
#include "shell/FrmPrinc.h"
#include "shell/SauvegardeAuto.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <string_view>

namespace {

void Presente()
{
    QCoreApplication::setApplicationName(QStringLiteral("Dorvanel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(DORVANEL_VERSION));
}

bool VeutDesMots(int nombre, char *arguments[])
{
    constexpr std::string_view mots[] = {"-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(arguments + 1, arguments + nombre,
                       [&](std::string_view argument) { return std::ranges::count(mots, argument) > 0; });
}

/// The files named on the command line, as a file manager starts the program. --help and --version end the process
/// here.
QStringList FichiersDemandes()
{
    QCommandLineParser ligne;
    ligne.addHelpOption();
    ligne.addVersionOption();
    ligne.addPositionalArgument(QStringLiteral("file"),
                                QStringLiteral("A program, a .par or a .mac file to begin with."),
                                QStringLiteral("[file...]"));
    ligne.process(*QCoreApplication::instance());
    QStringList fichiers = ligne.positionalArguments();
    for (QString &fichier : fichiers)
        fichier = QDir::toNativeSeparators(QDir().absoluteFilePath(fichier));
    return fichiers;
}

} // namespace

int main(int nombre, char *arguments[])
{
    Presente();
    if (VeutDesMots(nombre, arguments)) { // works without a display, where a QApplication would abort
        RelieConsole();
        const QCoreApplication application(nombre, arguments);
        FichiersDemandes();
    }
    const std::future<void> polices = LitPolices();
    QApplication application(nombre, arguments);
    QApplication::setStyle(new StyleContraste);         // after the application has got the desktop's style
    QApplication::setApplicationDisplayName(QString()); // otherwise every title would end in the program's name
    QGuiApplication::setDesktopFileName(QStringLiteral("dorvanel")); // the desktop's icon for the window
    const QStringList fichiers = FichiersDemandes();                 // before the start changes the current folder
    AppliqueLangueSysteme();

    polices.wait();
    FrmPrinc fenetre;
    fenetre.MSComm1->setDossierPorts(AjouteAntislash(DossierApplication()) + QStringLiteral("Ports"));
    Branche();
    // By then the operator has been asked whether to save. Another open window (the help) must not keep the program
    // running.
    QObject::connect(&fenetre, &FrmPrinc::Form_Unload, &application, [] { QCoreApplication::exit(); });
    RemetDisposition(fenetre);
    Form_Load();
    fenetre.show();
    const FinDemandee fin([&fenetre] {
        RetientTexte();
        GardeDisposition(fenetre);
    });
    // In one queued call, one after the other: separate calls would run inside the first box and open dialogs on top of
    // it.
    const auto arrivees = [&fichiers] {
        AnnonceDossierFerme();
        ProposeTextesRetrouves();
        for (const QString &fichier : fichiers)
            OuvreFichier(fichier);
    };
    QMetaObject::invokeMethod(&fenetre, arrivees, Qt::QueuedConnection);
    const int code = QApplication::exec();
    GardeDisposition(fenetre);
    return code;
}
