// Sends programs to the simulated machine in both ways of sending. Measures how long 20 kB take compared with the time
// that the line needs, how many characters still come after an XOFF, and the processor time used while the line is
// held. Each sending is a process of its own; the peer sends the same on another line at the same time. The slowest
// line is measured once more next to two busy processes on the same two cores.

#include "Mesure.h"
#include "Pair.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <sched.h>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

constexpr int Lignes20k = 870;       // of ProgrammeCN()
constexpr auto AvantRetenue = 300ms; // of sending, before the machine holds the line
constexpr int Retenues = 10;         // short ones, before the one that is measured
constexpr auto DureeCourte = 60ms;   // of these, and of the sending between two
constexpr auto Calme = 500ms;        // before what a held sending costs is measured
constexpr auto DureeRetenue = 3s;
constexpr int AttenteMax = 60000; // milliseconds

/// A way of sending, and the peer that sends in the same way.
struct Envoi20k
{
    int typeEnvoi;
    const char *nom;
    Pair::Logiciel pair;
};
constexpr Envoi20k Envois[] = {{1, "whole file", Pair::Cat}, {0, "line by line", Pair::AsciiXfr}};

QString Intitule(int vitesse, const Envoi20k &envoi, const char *quoi)
{
    return QStringLiteral("%1 baud, %2: %3")
        .arg(QString::number(vitesse), QLatin1String(envoi.nom), QLatin1String(quoi));
}

/// How many characters the machine may still get after an XOFF.
struct BorneXoff
{
    int vitesse;
    double suite;
    int lignes; // length of the program: the line is busy until the last hold, and not much longer
};
constexpr BorneXoff BornesXoff[] = {{9600, 8, 130}, {19200, 8, 260}, {115200, 60, Lignes20k}};
constexpr double BorneOccupe = 10; // the same from a busy PC; with more, some machines raise an alarm

int LignesRetenue(int vitesse)
{
    const auto borne = std::find_if(std::begin(BornesXoff), std::end(BornesXoff),
                                    [=](const BorneXoff &b) { return b.vitesse == vitesse; });
    return borne == std::end(BornesXoff) ? Lignes20k : borne->lignes;
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

/// The program with a text in its pane and a machine on Com2.
class PosteEmission
{
public:
    PosteEmission(int vitesse, int typeEnvoi, int lignes)
        : machine(MachineDeMesure(vitesse))
    {
        fenetre.MSComm1->setDossierPorts(m_dossier.path());
        fenetre.Text1->setText(ProgrammeCN(lignes));
        fenetre.show();
        QFile::link(machine.Chemin(), m_dossier.filePath(QStringLiteral("Com2")));
        ConfigureMachine(vitesse);
        ParamCom.TypeFinLig = FinLigLf;
        ParamCom.TypeEnvoi = typeEnvoi;
        BatirChaines();
    }

    /// Runs one sending in a visible dialog, as the operator sees it.
    void Emet()
    {
        Transfert.TypeTransfert = EmissionProgramme;
        Transfert.FinTransfert = false;
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
    for (int i = 0; i < Retenues; ++i) {
        QTimer::singleShot(AvantRetenue + 2 * i * DureeCourte, &poste.fenetre, [&] { poste.machine.Retient(); });
        QTimer::singleShot(AvantRetenue + (2 * i + 1) * DureeCourte, &poste.fenetre, [&] { poste.machine.Reprend(); });
    }
    const auto derniere = AvantRetenue + 2 * Retenues * DureeCourte;
    QTimer::singleShot(derniere, &poste.fenetre, [&] { poste.machine.Retient(); });
    QTimer::singleShot(derniere + Calme, &poste.fenetre, [&] { debut = TempsProcesseur(); });
    QTimer::singleShot(derniere + Calme + DureeRetenue, &poste.fenetre, [&] {
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

/// Keeps a core busy until it is killed, or for two minutes if nobody is left to kill it.
void RendOccupe()
{
    std::minstd_rand nombres;
    while (TempsProcesseur() < 120)
        nombres.discard(1'000'000);
    Rend({static_cast<double>(nombres())});
}

void JoueRole(const QStringList &arguments)
{
    const QString &role = arguments.at(1);
    if (role == QLatin1String("occupe")) {
        RendOccupe();
    } else if (role == QLatin1String("repos")) {
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

/// The bound, and the words that tell its row from the others.
struct Borne
{
    const char *quoi;
    double rapport;
};
constexpr Borne BorneCalme{"20 kB, s / its line time", 1.01};
constexpr Borne BorneDeuxOccupes{"two busy: 20 kB, s / its line time", 1.10};

bool MontreTemps(int vitesse, const Envoi20k &envoi, const Course::Temps &temps, const Borne &borne)
{
    return Montre({Intitule(vitesse, envoi, borne.quoi), temps.programme, temps.pair,
                   QLatin1String(Pair::NomDe(envoi.pair)), temps.programme / temps.ligne, borne.rapport});
}

/// Slow lines leave the PC idle, so all are measured at once.
bool MesureTempsLents(std::initializer_list<int> vitesses, const Borne &borne, const QTemporaryDir &dossier)
{
    struct EnCours
    {
        int vitesse;
        const Envoi20k &envoi;
        std::unique_ptr<Course> course;
    };
    std::vector<EnCours> tous;
    for (const int vitesse : vitesses) {
        for (const Envoi20k &envoi : Envois)
            tous.push_back({vitesse, envoi, std::make_unique<Course>(vitesse, envoi, dossier)});
    }
    bool tenu = true;
    for (const EnCours &un : tous)
        tenu &= MontreTemps(un.vitesse, un.envoi, un.course->Attend(), borne);
    return tenu;
}

/// As long as it lives, the whole benchmark runs on two cores, next to two processes that keep both busy.
class DeuxCoeursOccupes
{
public:
    DeuxCoeursOccupes()
    {
        sched_getaffinity(0, sizeof m_avant, &m_avant);
        cpu_set_t deux{};
        for (std::size_t coeur = 0; coeur < CPU_SETSIZE && CPU_COUNT(&deux) < 2; ++coeur) {
            if (CPU_ISSET(coeur, &m_avant))
                CPU_SET(coeur, &deux);
        }
        sched_setaffinity(0, sizeof deux, &deux);
        for (std::unique_ptr<Enfant> &occupe : m_occupes)
            occupe = std::make_unique<Enfant>(QStringList(QStringLiteral("occupe")));
    }
    ~DeuxCoeursOccupes() { sched_setaffinity(0, sizeof m_avant, &m_avant); }
    Q_DISABLE_COPY_MOVE(DeuxCoeursOccupes)

private:
    cpu_set_t m_avant{};
    std::array<std::unique_ptr<Enfant>, 2> m_occupes;
};

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
    return MontreTemps(115200, envoi, temps, BorneCalme);
}

/// How the peer behaves when the machine holds the line: characters that still come, processor time used.
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

bool MesureRetenue(const BorneXoff &borne, const Envoi20k &envoi, const QTemporaryDir &dossier)
{
    Enfant programme(Arguments("retenue", borne.vitesse, envoi));
    Pair pair(envoi.pair, borne.vitesse);
    pair.Emet(EcritProgramme(dossier, Lignes20k));
    const RetenuePair pairTenu = Retient(pair);
    const QList<double> tenu = programme.Chiffres(2);
    const QString nom = QLatin1String(Pair::NomDe(envoi.pair));
    const bool suite = Montre({Intitule(borne.vitesse, envoi, "characters after XOFF"), tenu.at(0), pairTenu.suite, nom,
                               tenu.at(0), borne.suite});
    const bool processeur = Montre({Intitule(borne.vitesse, envoi, "processor while held"), tenu.at(1),
                                    pairTenu.processeur, nom, tenu.at(1), 0.02});
    return suite && processeur;
}

/// Measures the slow line next to busy programs: the time of a program, and the characters that come after an XOFF.
bool MesureOccupe(const QTemporaryDir &dossier)
{
    const DeuxCoeursOccupes occupes;
    bool tenu = MesureTempsLents({9600}, BorneDeuxOccupes, dossier);
    for (const Envoi20k &envoi : Envois) {
        const double suite = Enfant(Arguments("retenue", 9600, envoi)).Chiffres(2).at(0);
        tenu &=
            Montre({Intitule(9600, envoi, "two busy: characters after XOFF"), suite, qQNaN(), {}, suite, BorneOccupe});
    }
    return tenu;
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
    bool tenu = MesureTempsLents({9600, 19200}, BorneCalme, dossier);
    const double auRepos = repos.Chiffres(1).at(0);
    tenu &= Montre({QStringLiteral("processor, idle main window (part of a core)"), auRepos, vide.Chiffres(1).at(0),
                    QStringLiteral("bare Qt widget"), auRepos, 0.005});
    for (const Envoi20k &envoi : Envois)
        tenu &= MesureTemps115200(envoi, dossier);
    for (const BorneXoff &borne : BornesXoff) {
        for (const Envoi20k &envoi : Envois)
            tenu &= MesureRetenue(borne, envoi, dossier);
    }
    tenu &= MesureOccupe(dossier);
    return tenu ? 0 : 1;
}
