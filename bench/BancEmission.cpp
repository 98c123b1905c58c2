// Sends programs to the simulated machine in both ways of sending and measures the line: how long a program of 20 kB
// took against what the line needs, what still comes after an XOFF, what the processor does while the line is held.
// Each sending is a process of its own, and the peer sends the same on a line of its own at the same time.

#include "Mesure.h"
#include "Pair.h"

#include "comconfig/ParamCom.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <thread>

namespace {

using namespace std::chrono_literals;

constexpr int Lignes20k = 870;       // of ProgrammeCN()
constexpr auto AvantRetenue = 500ms; // of sending, before the machine holds the line
constexpr auto Calme = 500ms;        // before what a held sending costs is measured
constexpr auto DureeRetenue = 3s;
constexpr int AttenteMax = 60000; // milliseconds

/// A way of sending, and who else sends like that.
struct Envoi20k
{
    int typeEnvoi;
    const char *nom;
    Pair::Programme pair;
};
constexpr Envoi20k Envois[] = {{1, "whole file", Pair::Cat}, {0, "line by line", Pair::AsciiXfr}};

QString Intitule(int vitesse, const Envoi20k &envoi, const char *quoi)
{
    return QStringLiteral("%1 baud, %2: %3")
        .arg(QString::number(vitesse), QLatin1String(envoi.nom), QLatin1String(quoi));
}

/// Enough for the line to be busy from the beginning to the hold, and not much longer behind it.
int LignesRetenue(int vitesse)
{
    return vitesse == 9600 ? 130 : Lignes20k;
}

double Secondes(std::chrono::nanoseconds duree)
{
    return std::chrono::duration<double>(duree).count();
}

/// Seconds that the machine's line was busy with the one program that it has received, infinite when there is none.
double DureeRecue(const MachineSimulee &machine)
{
    if (!machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }, AttenteMax))
        return qInf();
    const ProgrammeRecu recu = machine.Programmes().front();
    return Secondes(recu.Dernier - recu.Premier);
}

// ---- The program, in a process of its own

/// The program with a CN program in its pane and a machine on Com2.
class PosteEmission
{
public:
    PosteEmission(int vitesse, int typeEnvoi, int lignes)
        : machine(ReglageBanc(vitesse))
    {
        fenetre.MSComm1->setDossierPorts(m_dossier.path());
        fenetre.Text1->setText(ProgrammeCN(lignes));
        fenetre.show();
        QFile::link(machine.Chemin(), m_dossier.filePath(QStringLiteral("Com2")));
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
        Em_Rc dialogue(&fenetre);
        dialogue.show();
        dialogue.Command2->click();
    }

private:
    QTemporaryDir m_dossier;

public:
    FrmPrinc fenetre;
    MachineSimulee machine;
};

void RendDuree(int vitesse, int typeEnvoi)
{
    PosteEmission poste(vitesse, typeEnvoi, Lignes20k);
    poste.Emet();
    const double duree = DureeRecue(poste.machine);
    Rend({duree, Secondes(poste.machine.TempsLigne(poste.machine.Programmes().front().Caracteres))});
}

void RendRetenue(int vitesse, int typeEnvoi)
{
    PosteEmission poste(vitesse, typeEnvoi, LignesRetenue(vitesse));
    double debut = 0;
    double processeur = 0;
    qint64 suite = 0;
    QTimer::singleShot(AvantRetenue, &poste.fenetre, [&] { poste.machine.Retient(); });
    QTimer::singleShot(AvantRetenue + Calme, &poste.fenetre, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(AvantRetenue + Calme + DureeRetenue, &poste.fenetre, [&] {
        processeur = (TempsProcesseur() - debut) / Secondes(DureeRetenue);
        suite = poste.machine.Etat().SuiteXoffMax;
        poste.machine.Reprend();
    });
    poste.Emet();
    Rend({static_cast<double>(suite), processeur});
}

void RendRepos(QWidget &fenetre)
{
    constexpr int secondes = 10;
    fenetre.show();
    QEventLoop boucle;
    double debut = 0;
    QTimer::singleShot(1s, &boucle, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(1s + std::chrono::seconds(secondes), &boucle, &QEventLoop::quit);
    boucle.exec();
    Rend({(TempsProcesseur() - debut) / secondes});
}

void JoueRole(const QStringList &arguments)
{
    const QString &role = arguments.at(1);
    if (role == QLatin1String("repos")) {
        FrmPrinc fenetre;
        RendRepos(fenetre);
    } else if (role == QLatin1String("vide")) {
        QWidget fenetre;
        RendRepos(fenetre);
    } else {
        const auto rend = role == QLatin1String("duree") ? RendDuree : RendRetenue;
        rend(arguments.at(2).toInt(), arguments.at(3).toInt());
    }
}

// ---- Side by side with the peer

QString EcritProgramme(const QTemporaryDir &dossier, int lignes)
{
    QFile fichier(dossier.filePath(QString::number(lignes)));
    if (fichier.open(QIODevice::WriteOnly))
        fichier.write(ProgrammeCN(lignes).toLatin1() + '\x04');
    return fichier.fileName();
}

QStringList Arguments(const char *role, int vitesse, const Envoi20k &envoi)
{
    return {QLatin1String(role), QString::number(vitesse), QString::number(envoi.typeEnvoi)};
}

/// The program and the peer send 20 kB, from the construction on.
class Course
{
public:
    Course(int vitesse, const Envoi20k &envoi, const QTemporaryDir &dossier)
        : m_programme(Arguments("duree", vitesse, envoi))
        , m_pair(envoi.pair, vitesse)
    {
        m_pair.Emet(EcritProgramme(dossier, Lignes20k));
    }

    struct Temps
    {
        double programme;
        double ligne;
        double pair;
    };
    Temps Attend()
    {
        const QList<double> programme = m_programme.Chiffres(2);
        return {programme.at(0), programme.at(1), DureeRecue(m_pair.Machine())};
    }

private:
    Enfant m_programme;
    Pair m_pair;
};

bool MontreTemps(int vitesse, const Envoi20k &envoi, const Course::Temps &temps)
{
    return Montre({Intitule(vitesse, envoi, "20 kB, s / its line time"), temps.programme, temps.pair,
                   QLatin1String(Pair::NomDe(envoi.pair)), temps.programme / temps.ligne, 1.01});
}

/// A slow line leaves the PC idle: both ways go at once.
bool MesureTemps9600(const QTemporaryDir &dossier)
{
    Course entier(9600, Envois[0], dossier);
    Course lignes(9600, Envois[1], dossier);
    const bool tenu = MontreTemps(9600, Envois[0], entier.Attend());
    return MontreTemps(9600, Envois[1], lignes.Attend()) && tenu;
}

bool MesureTemps115200(const Envoi20k &envoi, const QTemporaryDir &dossier)
{
    constexpr int fois = 3;
    QList<double> rapports;
    Course::Temps temps{};
    for (int i = 0; i < fois; ++i) {
        temps = Course(115200, envoi, dossier).Attend();
        rapports << temps.programme / temps.ligne;
    }
    temps.programme = Mediane(rapports) * temps.ligne;
    return MontreTemps(115200, envoi, temps);
}

/// What the peer does when the machine holds the line: characters that come all the same, processor.
struct RetenuePair
{
    double suite;
    double processeur;
};

RetenuePair Retient(Pair &pair)
{
    pair.Machine().Attend([](const EtatMachine &etat) { return etat.Recus > 0; }, AttenteMax);
    std::this_thread::sleep_for(AvantRetenue);
    pair.Machine().Retient();
    std::this_thread::sleep_for(Calme);
    const double debut = pair.Processeur();
    std::this_thread::sleep_for(DureeRetenue);
    return {static_cast<double>(pair.Machine().Etat().SuiteXoffMax),
            std::max(0.0, pair.Processeur() - debut) / Secondes(DureeRetenue)};
}

bool MesureRetenue(int vitesse, const Envoi20k &envoi, const QTemporaryDir &dossier)
{
    Enfant programme(Arguments("retenue", vitesse, envoi));
    Pair pair(envoi.pair, vitesse);
    pair.Emet(EcritProgramme(dossier, Lignes20k));
    const RetenuePair pairTenu = Retient(pair);
    const QList<double> tenu = programme.Chiffres(2);
    const double borneSuite = vitesse == 9600 ? 20.0 : 200.0;
    const QString nom = QLatin1String(Pair::NomDe(envoi.pair));
    const bool suite = Montre({Intitule(vitesse, envoi, "characters within 3.5 s after XOFF"), tenu.at(0),
                               pairTenu.suite, nom, tenu.at(0), borneSuite});
    const bool processeur = Montre(
        {Intitule(vitesse, envoi, "processor while held"), tenu.at(1), pairTenu.processeur, nom, tenu.at(1), 0.02});
    return suite && processeur;
}

} // namespace

int main(int nombre, char *arguments[])
{
    const QApplication application(nombre, arguments);
    if (nombre > 1) {
        JoueRole(QCoreApplication::arguments());
        return 0;
    }
    const QTemporaryDir dossier;
    Enfant repos({QStringLiteral("repos")});
    Enfant vide({QStringLiteral("vide")});
    bool tenu = MesureTemps9600(dossier);
    const double auRepos = repos.Chiffres(1).at(0);
    tenu &= Montre({QStringLiteral("processor, idle main window (part of a core)"), auRepos, vide.Chiffres(1).at(0),
                    QStringLiteral("bare Qt widget"), auRepos, 0.005});
    for (const Envoi20k &envoi : Envois)
        tenu &= MesureTemps115200(envoi, dossier);
    for (const int vitesse : {9600, 115200}) {
        for (const Envoi20k &envoi : Envois)
            tenu &= MesureRetenue(vitesse, envoi, dossier);
    }
    return tenu ? 0 : 1;
}
