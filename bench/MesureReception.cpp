// Receives programs from the simulated machine in the three ways. Measures a large file, in time and memory, compared
// with a bare text pane that gets the same text; one endless line with the echo on; the processor time of waiting for a
// silent machine; and the characters lost when receiving by character. Each memory figure, each waiting and each
// endless line is a process of its own.

#include "Mesure.h"
#include "Pair.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/serie/MSComm.h"
#include "programme/Menus.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Reception.h"
#include "transfer/ReceptionFichier.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <thread>

namespace {

constexpr int Lignes8Mo = 330000; // of ProgrammeCN()

/// A workstation with the simulated machine on Com2.
struct PosteReception
{
    explicit PosteReception(int vitesse)
        : machine(MachineDeMesure(vitesse))
    {
        fenetre.MSComm1->setDossierPorts(dossier.path());
        Branche();
        QFile::link(machine.Chemin(), dossier.filePath(QStringLiteral("Com2")));
        ConfigureMachine(vitesse > 0 ? vitesse : 115200);
        ParamCom.TailleTamponRecep = 9999;
        ParamCom.SeuilRecep = 256;
        Transfert.DossierRecep = dossier.path();
        Transfert.NomFicRecep = QStringLiteral("RECU.ISO");
        Transfert.TypeTransfert = AucunTransfert; // the dialog starts nothing by itself
        fenetre.show();
    }

    /// Runs a reception in a visible dialog. The machine sends once the port is open.
    void Recoit(RoutineReception reception, int typeRecep, const Envoi &envoi)
    {
        ParamCom.TypeRecep = typeRecep;
        Em_Rc dialogue(&fenetre);
        dialogue.show();
        QTimer depart;
        QObject::connect(&depart, &QTimer::timeout, [&] {
            if (frmPrinc->PortOuvert) {
                depart.stop();
                machine.Emet(envoi);
            }
        });
        depart.start(1);
        reception(dialogue.Vue());
    }

    QTemporaryDir dossier;
    FrmPrinc fenetre;
    MachineSimulee machine;
};

double DureeFichier(int lignes)
{
    PosteReception poste(0);
    Envoi envoi;
    envoi.Texte = OctetsEn1252(ProgrammeCN(lignes));
    return SecondesDe([&] { poste.Recoit(ReceptionFichier, RecepFichier, envoi); });
}

// ---- Roles of a process of its own

/// Peak memory of this process, bytes.
double Pointe()
{
    QFile etat(QStringLiteral("/proc/self/status"));
    if (!etat.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &ligne : etat.readAll().split('\n')) {
        if (ligne.startsWith("VmHWM:"))
            return ligne.simplified().split(' ').value(1).toDouble() * 1024;
    }
    return 0;
}

constexpr auto AvantAttente = std::chrono::seconds(1);
constexpr auto DureeAttente = std::chrono::seconds(3);

/// A way of receiving, and the peer that waits in the same way.
struct Facon
{
    const char *nom;
    int typeRecep;
    RoutineReception reception;
    Pair::Logiciel pair;
};
constexpr Facon Facons[] = {{"by line", RecepLignes, ReceptionLigne, Pair::AsciiXfr},
                            {"by character", RecepCaracteres, ReceptionCar, Pair::PythonSerie},
                            {"by file", RecepFichier, ReceptionFichier, Pair::Cat}};

double ProcesseurEnAttente(const Facon &facon)
{
    PosteReception poste(9600);
    double debut = 0;
    double fin = 0;
    QTimer::singleShot(AvantAttente, &poste.fenetre, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(AvantAttente + DureeAttente, &poste.fenetre, [&] {
        fin = TempsProcesseur();
        Transfert.ForceRECEPT = true;
    });
    Envoi silence;
    silence.SansFin = true;
    poste.Recoit(facon.reception, facon.typeRecep, silence);
    return (fin - debut) / std::chrono::duration<double>(DureeAttente).count();
}

/// Receives one line of caracteres characters with the echo on, and shows it in the program pane. Gives the seconds,
/// and the longest time in milliseconds that the event loop was blocked.
QList<double> LigneSansFin(int caracteres)
{
    PosteReception poste(0);
    ParamCom.Echo = 1;
    Envoi envoi;
    envoi.Texte = QByteArray(caracteres, 'X');
    QElapsedTimer depuis;
    qint64 retenue = 0;
    QTimer pouls;
    QObject::connect(&pouls, &QTimer::timeout, [&] {
        retenue = depuis.isValid() ? std::max(retenue, depuis.elapsed()) : 0;
        depuis.start();
    });
    pouls.start(1);
    const double secondes = SecondesDe([&] { poste.Recoit(ReceptionFichier, RecepFichier, envoi); });
    CedeLaMain(); // shows it in the program pane
    CedeLaMain();
    return {secondes, static_cast<double>(retenue)};
}

void JoueRole(const QString &role, int numero)
{
    if (role == QLatin1String("ligne")) {
        Rend(LigneSansFin(numero));
        return;
    }
    if (role == QLatin1String("attente")) {
        Rend({ProcesseurEnAttente(Facons[numero])});
        return;
    }
    role == QLatin1String("volet") ? DureeVoletNu(ProgrammeCN(Lignes8Mo)) : DureeFichier(Lignes8Mo);
    Rend({Pointe()});
}

// ---- The figures

/// Each ratio compares two runs side by side, so that a pause of the PC spoils only one ratio.
bool MesureGrandFichier()
{
    constexpr int fois = 5;
    const QString huit = ProgrammeCN(Lignes8Mo);
    const QString seize = ProgrammeCN(2 * Lignes8Mo);
    QList<double> volets;
    QList<double> rapports;
    QList<double> croissances;
    QList<double> croissancesVolet;
    for (int i = 0; i < fois; ++i) {
        const double reception = DureeFichier(Lignes8Mo);
        volets << DureeVoletNu(huit);
        rapports << reception / volets.last();
        croissances << DureeFichier(2 * Lignes8Mo) / reception;
        croissancesVolet << DureeVoletNu(seize) / volets.last();
    }
    const QString volet = QStringLiteral("bare text pane");
    const double rapport = Mediane(rapports);
    const double croissance = Mediane(croissances);
    const bool temps = Montre({QStringLiteral("reception by file of 8 MB, s / pane given the text"),
                               rapport * Mediane(volets), Mediane(volets), volet, rapport, 2.0});
    const bool suite = Montre({QStringLiteral("reception of 16 MB / of 8 MB"), croissance, Mediane(croissancesVolet),
                               volet, croissance, 2.2});
    return temps && suite;
}

bool MesureLigneSansFin()
{
    constexpr int fois = 5;
    QList<double> durees;
    QList<double> croissances;
    QList<double> retenues;
    for (int i = 0; i < fois; ++i) {
        const QList<double> deux = Enfant({QStringLiteral("ligne"), QStringLiteral("2000000")}).Chiffres(2);
        const QList<double> quatre = Enfant({QStringLiteral("ligne"), QStringLiteral("4000000")}).Chiffres(2);
        durees << deux.at(0);
        croissances << quatre.at(0) / deux.at(0);
        retenues << deux.at(1);
    }
    const bool suite = Montre({QStringLiteral("one endless line with echo, s for 2 MB; 4 MB / 2 MB"), Mediane(durees),
                               qQNaN(), QString(), Mediane(croissances), 2.2});
    const bool retenue = Montre({QStringLiteral("longest hold of the event loop by it, ms"), Mediane(retenues), qQNaN(),
                                 QString(), Mediane(retenues), 100});
    return suite && retenue;
}

bool MesureMemoire()
{
    constexpr double Mo = 1024.0 * 1024;
    const double programme = Enfant({QStringLiteral("programme"), QString()}).Chiffres(1).at(0);
    const double volet = Enfant({QStringLiteral("volet"), QString()}).Chiffres(1).at(0);
    return Montre({QStringLiteral("memory at the peak of it, MB / pane with the text"), programme / Mo, volet / Mo,
                   QStringLiteral("bare text pane"), programme / volet, 2.2});
}

double ProcesseurPair(Pair &pair)
{
    const double debut = pair.Processeur();
    std::this_thread::sleep_for(DureeAttente);
    return (pair.Processeur() - debut) / std::chrono::duration<double>(DureeAttente).count();
}

bool MesureAttente(const QTemporaryDir &dossier)
{
    bool tenu = true;
    for (int i = 0; i < 3; ++i) {
        const Facon &facon = Facons[i];
        Enfant programme({QStringLiteral("attente"), QString::number(i)});
        Pair pair(facon.pair, 9600);
        pair.Recoit(dossier.filePath(QStringLiteral("attente")));
        std::this_thread::sleep_for(AvantAttente);
        const double processeurPair = ProcesseurPair(pair);
        const double processeur = programme.Chiffres(1).at(0);
        tenu &= Montre({QStringLiteral("processor, reception %1 waits (part of a core)").arg(QLatin1String(facon.nom)),
                        processeur, processeurPair, QLatin1String(Pair::NomDe(facon.pair)), processeur, 0.02});
    }
    return tenu;
}

/// Measures lost characters. The peer receives the same at the same time.
bool MesurePertes(const QTemporaryDir &dossier)
{
    const QString recuPair = dossier.filePath(QStringLiteral("recu"));
    Envoi envoi;
    envoi.Texte = OctetsEn1252(ProgrammeCN(200));
    envoi.PauseLigneMs = 20;
    Pair pair(Pair::PythonSerie, 115200);
    pair.Recoit(recuPair);
    PosteReception poste(115200);
    std::this_thread::sleep_for(AvantAttente); // the peer throws away what comes before it is ready
    pair.Machine().Emet(envoi);
    ParamCom.NbCarLecture = 1;
    poste.Recoit(ReceptionCar, RecepCaracteres, envoi);
    pair.Attend();
    // The program's file ends with one line end more than was sent, the peer's with the end-of-transfer character.
    const auto manquent = [&](const QString &recu, qsizetype enPlus) {
        return static_cast<double>(envoi.Texte.size() + enPlus - LitOctets(recu).size());
    };
    const double perdus = manquent(CheminRecep(), 2);
    return Montre({QStringLiteral("115200 baud, by character, 20 ms behind each line: lost"), perdus,
                   manquent(recuPair, 1), QLatin1String(Pair::NomDe(Pair::PythonSerie)), perdus, 0});
}

} // namespace

int main(int nombre, char *arguments[])
{
    const QApplication application(nombre, arguments);
    if (nombre > 1) {
        const QStringList role = QCoreApplication::arguments();
        JoueRole(role.at(1), role.at(2).toInt());
        return 0;
    }
    const QTemporaryDir dossier;
    bool tenu = MesureGrandFichier();
    tenu &= MesureLigneSansFin();
    tenu &= MesureMemoire();
    tenu &= MesureAttente(dossier);
    tenu &= MesurePertes(dossier);
    return tenu ? 0 : 1;
}
