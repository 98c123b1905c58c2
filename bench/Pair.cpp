#include "Pair.h"

#include <ctime>

namespace {

constexpr int DemiBits = 20; // start, 8 data, no parity, 1 stop

// $1: the terminal, $2: the speed, $3: the file. The system's python3 has the package that they need.
struct Commandes
{
    const char *nom;
    const char *emet;
    const char *recoit;
};

constexpr Commandes Logiciels[] = {
    {"cat", R"(exec cat "$3" >"$1")", R"(exec cat <"$1" >"$3")"},
    {"ascii-xfr", R"(exec ascii-xfr -s -n "$3" >"$1")", R"(exec ascii-xfr -r -n -d "$3" <"$1")"},
    {"python3-serial",
     "exec /usr/bin/python3 -c 'import serial, sys\n"
     "port = serial.Serial(sys.argv[1], int(sys.argv[2]), xonxoff=True)\n"
     "port.write(open(sys.argv[3], \"rb\").read())\n"
     "port.flush()' \"$@\"",
     "exec /usr/bin/python3 -c 'import serial, sys\n"
     "port = serial.Serial(sys.argv[1], int(sys.argv[2]), xonxoff=True)\n"
     "text = bytearray()\n"
     "while not text.endswith(b\"\\x04\"):\n"
     "    text += port.read(1)\n"
     "open(sys.argv[3], \"wb\").write(text)' \"$@\""},
};

} // namespace

ReglageMachine MachineDeMesure(int vitesse)
{
    ReglageMachine reglage;
    reglage.Ligne = {vitesse, DemiBits};
    return reglage;
}

Pair::Pair(Logiciel logiciel, int vitesse)
    : m_logiciel(logiciel)
    , m_vitesse(vitesse)
    , m_machine(MachineDeMesure(vitesse))
{
}

Pair::~Pair()
{
    m_processus.kill();
    m_processus.waitForFinished(-1);
}

const char *Pair::NomDe(Logiciel logiciel)
{
    return Logiciels[logiciel].nom;
}

void Pair::Emet(const QString &fichier)
{
    Lance(QString::fromLatin1(Logiciels[m_logiciel].emet), fichier);
}

void Pair::Recoit(const QString &fichier)
{
    Lance(QString::fromLatin1(Logiciels[m_logiciel].recoit), fichier);
}

void Pair::Lance(const QString &commande, const QString &fichier)
{
    const QString prepare = QStringLiteral(R"(stty -F "$1" "$2" raw -echo ixon ixoff && )");
    m_processus.start(QStringLiteral("sh"), {QStringLiteral("-c"), prepare + commande, QStringLiteral("pair"),
                                             m_machine.Chemin(), QString::number(m_vitesse), fichier});
    m_processus.waitForStarted(-1);
}

double Pair::Processeur() const
{
    clockid_t horloge{};
    timespec temps{};
    if (clock_getcpuclockid(static_cast<pid_t>(m_processus.processId()), &horloge) != 0 ||
        clock_gettime(horloge, &temps) != 0)
        return 0;
    return static_cast<double>(temps.tv_sec) + static_cast<double>(temps.tv_nsec) * 1e-9;
}
