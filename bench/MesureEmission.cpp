// Sends programs to the simulated machine in both ways of sending and measures the line: how long a program of 20 kB
// took against what the line needs, what still comes after an XOFF, what the processor does while the line is held.
// Each sending is a process of its own, and the peer sends the same on a line of its own at the same time. The slow
// line is measured once more beside two busy processes on the same two cores.

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

/// A way of sending, and who else sends like that.
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

/// What the machine may get after an XOFF.
struct BorneXoff
{
    int vitesse;
    double suite;
    int lignes; // enough for the line to be busy from the beginning to the last hold, and not much longer behind it
};
constexpr BorneXoff BornesXoff[] = {{9600, 8, 130}, {19200, 8, 260}, {115200, 60, Lignes20k}};
constexpr double BorneOccupe = 10; // and from a busy PC: more, and some controls raise an alarm

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

/// The program with a CN program in its pane and a machine on Com2.
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

    /// Runs one sending in a dialog on the screen, as the operator sees it.
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

/// Wants a core whole until it is killed, or for two minutes should nobody be left to do that.
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

/// What the bound is on, and how the row is told apart.
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

/// A slow line leaves the PC idle: all go at once.
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

/// Two cores for all of this benchmark, and two processes that want them whole, as long as it lives.
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

/// The slow line beside other programs: how long it takes, and whether the machine that says XOFF keeps its peace.
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
