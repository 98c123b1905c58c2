// Receives programs from the simulated machine in the three ways and measures: a large file against a bare text pane
// that is given the same text, its memory, what waiting for a silent machine costs, and the characters lost by
// character.

#include "Mesure.h"

#include "comconfig/ParamCom.h"
#include "machine/MachineSimulee.h"
#include "platform/CedeLaMain.h"
#include "platform/FichierTexte.h"
#include "platform/MSComm.h"
#include "platform/PageCode1252.h"
#include "shell/FrmPrinc.h"
#include "shell/Menus.h"
#include "transfer/Em_Rc.h"
#include "transfer/Reception.h"
#include "transfer/ReceptionFichier.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int Lignes8Mo = 330000; // of ProgrammeCN()

/// A workstation with the simulated machine on Com2.
struct Poste
{
    explicit Poste(int vitesse)
        : machine(Reglage(vitesse))
    {
        fenetre.MSComm1->setDossierPorts(dossier.path());
        Branche();
        QFile::link(machine.Chemin(), dossier.filePath(QStringLiteral("Com2")));
        ConfigureMachine(vitesse > 0 ? vitesse : 115200);
        ParamCom.TailleTamponRecep = 9999;
        ParamCom.SeuilRecep = 256;
        DossierRecep = dossier.path();
        NomFicRecep = QStringLiteral("RECU.ISO");
        TypeTransfert = 0; // the dialog shows the transfer and starts nothing by itself
        fenetre.show();
    }

    static ReglageMachine Reglage(int vitesse)
    {
        ReglageMachine reglage;
        reglage.Ligne = {vitesse, 20};
        return reglage;
    }

    /// Runs a reception in a dialog on the screen; the machine sends once the port is open.
    void Recoit(void (*reception)(Ui::Em_Rc &), int typeRecep, const Envoi &envoi)
    {
        ParamCom.TypeRecep = typeRecep;
        Em_Rc dialogue(&fenetre);
        dialogue.show();
        QTimer depart;
        QObject::connect(&depart, &QTimer::timeout, [&] {
            if (PortOuvert) {
                depart.stop();
                machine.Emet(envoi);
            }
        });
        depart.start(1);
        reception(dialogue);
    }

    QTemporaryDir dossier;
    FrmPrinc fenetre;
    MachineSimulee machine;
};

double DureeFichier(int lignes)
{
    Poste poste(0);
    Envoi envoi;
    envoi.Texte = OctetsEn1252(ProgrammeCN(lignes));
    return SecondesDe([&] { poste.Recoit(ReceptionFichier, RecepFichier, envoi); });
}

/// Peak of this process's memory, bytes.
qint64 Pointe()
{
    QFile etat(QStringLiteral("/proc/self/status"));
    if (!etat.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &ligne : etat.readAll().split('\n')) {
        if (ligne.startsWith("VmHWM:"))
            return ligne.simplified().split(' ').value(1).toLongLong() * 1024;
    }
    return 0;
}

qint64 PointeDe(const QString &role)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(), {role});
    enfant.waitForFinished(-1);
    return enfant.readAllStandardOutput().toLongLong();
}

double ProcesseurEnAttente(void (*reception)(Ui::Em_Rc &), int typeRecep)
{
    using namespace std::chrono_literals;
    Poste poste(9600);
    double debut = 0;
    double fin = 0;
    QTimer::singleShot(1s, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(4s, [&] {
        fin = TempsProcesseur();
        ForceRECEPT = 1;
    });
    Envoi silence;
    silence.SansFin = true;
    poste.Recoit(reception, typeRecep, silence);
    return (fin - debut) / 3;
}

double CaracteresPerdus()
{
    Poste poste(115200);
    const QString programme = ProgrammeCN(200);
    Envoi envoi;
    envoi.Texte = OctetsEn1252(programme);
    envoi.PauseLigneMs = 20;
    ParamCom.NbCarLecture = 1;
    poste.Recoit(ReceptionCar, RecepCaracteres, envoi);
    const QByteArray recu = LitOctets(CheminRecep());
    return static_cast<double>(envoi.Texte.size() + 2 - recu.size());
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    if (nombre == 2) {
        const bool nu = qstrcmp(arguments[1], "nu") == 0;
        nu ? DureeVoletNu(ProgrammeCN(Lignes8Mo)) : DureeFichier(Lignes8Mo);
        std::printf("%lld\n", Pointe());
        return 0;
    }
    // Each ratio is taken from runs side by side, so that a PC that stalls spoils one of them and not the figure.
    const QString programme = ProgrammeCN(Lignes8Mo);
    constexpr int fois = 5;
    QList<double> croissances;
    const double volet = Mediane(fois, [&] {
        const double huit = DureeFichier(Lignes8Mo);
        croissances << DureeFichier(2 * Lignes8Mo) / huit;
        return huit / DureeVoletNu(programme);
    });
    const double croissance = Mediane(fois, [&] { return croissances.takeFirst(); });
    const auto memoire = static_cast<double>(PointeDe(QStringLiteral("programme")));
    bool tenu = Montre({QStringLiteral("reception by file of 8 MB / bare text pane"), volet, 2.0});
    tenu &= Montre({QStringLiteral("reception of 16 MB / of 8 MB"), croissance, 2.2});
    tenu &= Montre({QStringLiteral("memory at the peak / of a bare text pane with the text"),
                    memoire / static_cast<double>(PointeDe(QStringLiteral("nu"))), 2.2});
    tenu &= Montre({QStringLiteral("processor, reception by line waits (part of a core)"),
                    ProcesseurEnAttente(ReceptionLigne, RecepLignes), 0.02});
    tenu &= Montre({QStringLiteral("processor, reception by character waits (part of a core)"),
                    ProcesseurEnAttente(ReceptionCar, RecepCaracteres), 0.02});
    tenu &= Montre({QStringLiteral("processor, reception by file waits (part of a core)"),
                    ProcesseurEnAttente(ReceptionFichier, RecepFichier), 0.02});
    tenu &= Montre(
        {QStringLiteral("115200 baud, by character, 20 ms behind each line: characters lost"), CaracteresPerdus(), 0});
    return tenu ? 0 : 1;
}
