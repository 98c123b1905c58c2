// Sends a 20 kB program to the simulated machine in both ways of sending and measures the line: how long it took
// against what it needs, what still comes after an XOFF, what the processor does while the line is held.

#include "Mesure.h"

#include "comconfig/ParamCom.h"
#include "machine/MachineSimulee.h"
#include "platform/CedeLaMain.h"
#include "platform/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Emission.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

namespace {

constexpr int Lignes20k = 870; // of ProgrammeCN()
constexpr int DemiBits = 20;   // start, 8 data, no parity, 1 stop

ReglageMachine Machine(int vitesse)
{
    ReglageMachine reglage;
    reglage.Ligne = {vitesse, DemiBits};
    return reglage;
}

void Configure(const QString &port, int vitesse, int typeEnvoi)
{
    QFile::remove(port);
    ConfigureMachine(vitesse);
    ParamCom.TypeFinLig = 0;
    ParamCom.TypeEnvoi = typeEnvoi;
    BatirChaines();
}

/// Runs one sending in a dialog on the screen, as the operator sees it.
void Emet()
{
    TypeTransfert = EmissionProgramme;
    FinTransfert = 0;
    Em_Rc dialogue(frmPrinc);
    dialogue.show();
    dialogue.Command2->click();
}

double Rapport(const QString &port, int vitesse, int typeEnvoi)
{
    Configure(port, vitesse, typeEnvoi);
    const MachineSimulee machine(Machine(vitesse));
    QFile::link(machine.Chemin(), port);
    Emet();
    if (!machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }))
        return qInf();
    const ProgrammeRecu recu = machine.Programmes().front();
    const std::chrono::duration<double> duree = recu.Dernier - recu.Premier;
    const std::chrono::duration<double> ligne = machine.TempsLigne(recu.Caracteres);
    return duree / ligne;
}

/// What a machine that holds the line for a while sees and costs.
struct Retenue
{
    qint64 suite;      ///< characters after the XOFF
    double processeur; ///< part of a core, while held
};

Retenue Retient(const QString &port, int vitesse, int typeEnvoi)
{
    using namespace std::chrono_literals;
    constexpr auto duree = 5s;
    Configure(port, vitesse, typeEnvoi);
    MachineSimulee machine(Machine(vitesse));
    QFile::link(machine.Chemin(), port);
    double debut = 0;
    Retenue retenue{};
    QTimer::singleShot(500ms, frmPrinc, [&] { machine.Retient(); });
    QTimer::singleShot(1s, frmPrinc, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(1s + duree, frmPrinc, [&] {
        retenue.processeur = (TempsProcesseur() - debut) / std::chrono::duration<double>(duree).count();
        retenue.suite = machine.Etat().SuiteXoffMax;
        machine.Reprend();
    });
    Emet();
    return retenue;
}

double ProcesseurAuRepos()
{
    constexpr int secondes = 10;
    QEventLoop boucle;
    const double debut = TempsProcesseur();
    QTimer::singleShot(secondes * 1000, &boucle, &QEventLoop::quit);
    boucle.exec();
    return (TempsProcesseur() - debut) / secondes;
}

bool MesureTout(const QString &port)
{
    bool tenu = Montre({QStringLiteral("processor, idle main window (part of a core)"), ProcesseurAuRepos(), 0.005});
    for (const int vitesse : {9600, 115200}) {
        for (const int typeEnvoi : {1, 0}) {
            const QString nom =
                QStringLiteral("%1 baud, %2: ")
                    .arg(vitesse)
                    .arg(typeEnvoi == 1 ? QStringLiteral("whole file") : QStringLiteral("line by line"));
            const Retenue retenue = Retient(port, vitesse, typeEnvoi);
            tenu &= Montre({nom + QStringLiteral("time of a 20 kB sending / time of the line"),
                            Rapport(port, vitesse, typeEnvoi), 1.01});
            tenu &= Montre({nom + QStringLiteral("characters that come after XOFF"), double(retenue.suite),
                            vitesse == 9600 ? 20.0 : 200.0});
            tenu &= Montre({nom + QStringLiteral("processor while held (part of a core)"), retenue.processeur, 0.02});
        }
    }
    return tenu;
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    const QTemporaryDir dossier;
    FrmPrinc fenetre;
    fenetre.MSComm1->setDossierPorts(dossier.path());
    fenetre.Text1->setText(ProgrammeCN(Lignes20k));
    fenetre.show();
    return MesureTout(dossier.filePath(QStringLiteral("Com2"))) ? 0 : 1;
}
