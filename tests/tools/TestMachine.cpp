#include "machine/Lien.h"
#include "machine/MachineSimulee.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>

namespace {
constexpr ReglageLigne SansDelai{0, 20};

/// The PC's end of the line, with nothing of the program in between.
class Pc
{
public:
    explicit Pc(const QString &chemin, bool xonXoff = false)
        : m_port(open(QFile::encodeName(chemin).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        termios mode{};
        tcgetattr(m_port, &mode);
        cfmakeraw(&mode);
        if (xonXoff)
            mode.c_iflag |= IXON;
        tcsetattr(m_port, TCSANOW, &mode);
    }
    ~Pc() { close(m_port); }
    Q_DISABLE_COPY_MOVE(Pc)

    bool Ouvert() const { return m_port >= 0; }
    /// Writes all, waiting where the line is held; false after 10 s, or when the line is dead.
    bool Ecrit(QByteArray octets) const
    {
        while (!octets.isEmpty() && Pret(POLLOUT))
            octets.remove(0, std::max<ssize_t>(0, write(m_port, octets.data(), size_t(octets.size()))));
        return octets.isEmpty();
    }
    /// Reads exactly that many characters, or what came before 10 s of silence.
    QByteArray Lit(qsizetype nombre) const
    {
        QByteArray lus;
        char octet = 0;
        while (lus.size() < nombre && Pret(POLLIN) && read(m_port, &octet, 1) == 1)
            lus += octet;
        return lus;
    }
    /// False while the system's own flow control holds the PC.
    bool PeutEcrire() const { return Pret(POLLOUT, 0); }
    /// What a read and a write give on a dead line: nothing, and EIO.
    bool LigneMorte() const
    {
        char octet = 0;
        return Pret(POLLHUP) && read(m_port, &octet, 1) <= 0 && write(m_port, "x", 1) < 0 && errno == EIO;
    }

private:
    bool Pret(int quoi, int millisecondes = 10000) const
    {
        pollfd attente{m_port, short(quoi), 0};
        return poll(&attente, 1, millisecondes) == 1 && (attente.revents & quoi) != 0;
    }
    int m_port;
};

QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int code = 0; code < 256; ++code)
        octets += char(code);
    return octets;
}
} // namespace

class TestMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Recoit();
    void RetientEtDeborde();
    void TientLePc();
    void Emet_data();
    void Emet();
    void EmetSansPerdre();
    void EmissionObeit();
    void Eteinte();
    void LienPoseEtOte();
    void ProgrammeEntier();
};

// Every byte, over several programs, in pieces that cut the end chain; and the measures of a line at speed.
void TestMachine::Recoit()
{
    ReglageMachine reglage;
    reglage.Ligne = {115200, 20};
    reglage.Fin = "\r\4";
    MachineSimulee machine(reglage);
    const QByteArray texte = TousLesOctets() + TousLesOctets();
    {
        const Pc pc(machine.Chemin());
        QVERIFY(pc.Ecrit(texte + "\r"));
        QVERIFY(machine.Attend([&](const EtatMachine &etat) { return etat.EnCours == texte + "\r"; }));
        QCOMPARE(machine.Etat().Programmes, 0);
        QVERIFY(pc.Ecrit("\4N2\r\4N3"));
    } // what was written before the PC closed still arrives
    {
        const Pc pc(machine.Chemin());
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.EnCours == "N3"; }));
        machine.RemiseAZero();
        QVERIFY(pc.Ecrit("N4\r\4"));
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 3; }));
    }
    const std::vector<ProgrammeRecu> programmes = machine.Programmes();
    QCOMPARE(programmes[0].Texte, texte);
    QCOMPARE(programmes[0].Brut, texte + "\r\4");
    QCOMPARE(programmes[1].Texte, "N2");
    QCOMPARE(programmes[2].Texte, "N4");
    const Duree ecart = programmes[1].Dernier - programmes[1].Premier - machine.TempsLigne(4);
    QVERIFY2(std::chrono::abs(ecart) <= Duree(1), "no silence between characters written at once");
    QVERIFY(programmes[0].Dernier - programmes[0].Premier >= machine.TempsLigne(514));
    QCOMPARE(machine.Etat().Recus, 514 + 4 + 2 + 4);
}

// A PC that does not listen to XOFF overruns the buffer; nothing else is lost.
void TestMachine::RetientEtDeborde()
{
    ReglageMachine reglage;
    reglage.Ligne = SansDelai;
    reglage.Tampon = {8, 6, 2, 0, {{5, -1}}};
    MachineSimulee machine(reglage);
    const Pc pc(machine.Chemin());
    QVERIFY(pc.Ecrit("123456789abcdef"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Recus == 15; }));
    machine.Reprend();
    QVERIFY(pc.Ecrit("z\4"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    const ProgrammeRecu programme = machine.Programmes()[0];
    QCOMPARE(programme.Texte, "123456789abcz");
    QCOMPARE(programme.Caracteres, 17);
    QCOMPARE(programme.Perdus, 3);
    QCOMPARE(machine.Etat().SuiteXoff, 10); // said at the fifth character, though all were written at once
    QCOMPARE(pc.Lit(2), "\x13\x11");
}

// The system's own flow control on the PC's side listens to the machine.
void TestMachine::TientLePc()
{
    ReglageMachine reglage;
    reglage.Tampon = {512, 400, 10, 0, {}};
    reglage.Ligne = SansDelai;
    MachineSimulee machine(reglage);
    const Pc pc(machine.Chemin(), true);
    QVERIFY(pc.Ecrit(QByteArray(200, 'x')));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Recus == 200; }));
    machine.Retient();
    QCOMPARE(machine.Etat().XoffDits, 1);
    QTRY_VERIFY(!pc.PeutEcrire());
    machine.Reprend();
    QVERIFY(pc.Ecrit(QByteArray(100, 'y') + '\4'));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(machine.Programmes()[0].Texte, QByteArray(200, 'x') + QByteArray(100, 'y'));
    QCOMPARE(machine.Etat().Perdus, 0);
}

void TestMachine::Emet_data()
{
    QTest::addColumn<Envoi>("envoi");
    QTest::addColumn<QByteArray>("attendu");
    QTest::addColumn<QByteArrayList>("reponse");
    QTest::addColumn<bool>("juste");
    const QByteArray octets = TousLesOctets();
    QTest::newRow("right") << Envoi{octets} << "%" + octets + "\r\4" << QByteArrayList{"\r\4"} << true;
    QTest::newRow("empty, right in two pieces") << Envoi{} << QByteArray("%\r\4") << QByteArrayList{"\r", "\4"} << true;
    QTest::newRow("wrong") << Envoi{"N1"} << QByteArray("%N1\r\4") << QByteArrayList{"\r\n"} << false;
    QTest::newRow("without end") << Envoi{"N1", 0, "\n", -1, true} << QByteArray("%N1") << QByteArrayList{"\r\4"}
                                 << true;
    QTest::newRow("cut in mid-line") << Envoi{"N1X1\nN2", 1, "\n", 7} << QByteArray("%N1X1\nN")
                                     << QByteArrayList{"\r\4"} << true;
}

void TestMachine::Emet()
{
    QFETCH(Envoi, envoi);
    QFETCH(QByteArray, attendu);
    QFETCH(QByteArrayList, reponse);
    QFETCH(bool, juste);
    ReglageMachine reglage;
    reglage.Ligne = {115200, 20};
    reglage.Debut = "%";
    reglage.Fin = "\r\4";
    MachineSimulee machine(reglage);
    const Pc pc(machine.Chemin());
    machine.Emet(envoi);
    QCOMPARE(pc.Lit(attendu.size()), attendu);
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return !etat.Envoi.EnCours; }));
    QCOMPARE(machine.Etat().Envoi.Emis, attendu.size());
    QByteArray recu;
    for (const QByteArray &morceau : reponse) {
        QCOMPARE(machine.Etat().Envoi.Reponse, Retour::Attendu);
        QVERIFY(pc.Ecrit(morceau));
        recu += morceau;
        QVERIFY(machine.Attend([&](const EtatMachine &etat) { return etat.Envoi.Octets == recu; }));
    }
    QCOMPARE(machine.Etat().Envoi.Reponse, juste ? Retour::Juste : Retour::Faux);
    QVERIFY(pc.Ecrit("%N9\r\4")); // the machine receives again
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(machine.Programmes()[0].Texte, "N9");
}

// More than the system holds for a PC that does not read yet.
void TestMachine::EmetSansPerdre()
{
    ReglageMachine reglage;
    reglage.Ligne = SansDelai;
    MachineSimulee machine(reglage);
    const Pc pc(machine.Chemin());
    const QByteArray texte = TousLesOctets().repeated(400);
    machine.Emet({texte});
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Emis > 0; }));
    QVERIFY(machine.Etat().Envoi.EnCours);
    QCOMPARE(pc.Lit(texte.size() + 1), texte + '\4');
}

void TestMachine::EmissionObeit()
{
    ReglageMachine reglage;
    reglage.Ligne = {10000, 20}; // a character takes 1 ms
    MachineSimulee machine(reglage);
    const Pc pc(machine.Chemin());
    const QByteArray texte = TousLesOctets().repeated(4);
    machine.Emet({texte});
    QByteArray recu = pc.Lit(1);
    QVERIFY(pc.Ecrit(QByteArray(1, Xoff)));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.XoffRecus == 1; }));
    const qint64 emis = machine.Etat().Envoi.Emis;
    QVERIFY(pc.Ecrit(QByteArray(5, Xoff)));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.XoffRecus == 6; }));
    QCOMPARE(machine.Etat().Envoi.Emis, emis);
    QVERIFY(machine.Etat().Envoi.EnCours);
    QVERIFY(pc.Ecrit(QByteArray(1, Xon)));
    recu += pc.Lit(texte.size());
    QCOMPARE(recu, texte + '\4');
    QVERIFY(machine.Etat().Envoi.Octets.isEmpty()); // XON and XOFF are no answer
}

void TestMachine::Eteinte()
{
    MachineSimulee machine;
    const Pc pc(machine.Chemin());
    QVERIFY(pc.Ecrit("N1"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.EnCours == "N1"; }));
    machine.Arrete();
    QVERIFY(pc.LigneMorte());
    QVERIFY(!QFile::exists(machine.Chemin()) || !Pc(machine.Chemin()).Ouvert());
    QCOMPARE(machine.Etat().EnCours, "N1");
}

void TestMachine::LienPoseEtOte()
{
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("Ports/Com2"));
    {
        const Lien mort(chemin, QStringLiteral("/dev/pts/none"));
        const MachineSimulee machine;
        std::optional<Lien> lien(std::in_place, chemin, machine.Chemin());
        QCOMPARE(QFile::symLinkTarget(chemin), machine.Chemin());
        QVERIFY(Pc(chemin).Ouvert());
        const Lien autre(chemin, QStringLiteral("/dev/null"));
        lien.reset();
        QCOMPARE(QFile::symLinkTarget(chemin), QStringLiteral("/dev/null")); // no longer ours to remove
    }
    QCOMPARE(QDir(dossier.filePath(QStringLiteral("Ports")))
                 .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList());
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, Lien(chemin, QStringLiteral("/dev/null")));
    QVERIFY(fichier.exists());
}

// The program, as an operator uses it: a link, keys, stored files, and a clean end.
void TestMachine::ProgrammeEntier()
{
    const QTemporaryDir dossier;
    const QString lien = dossier.filePath(QStringLiteral("Com2"));
    for (const char *nom : {"001.txt", "piece.txt"}) {
        QFile fichier(dossier.filePath(QLatin1String(nom)));
        QVERIFY(fichier.open(QIODevice::WriteOnly) && fichier.write("N1\r\n") == 4);
    }
    QProcess machine;
    QByteArray sortie;
    const auto dit = [&](const char *ligne) {
        sortie += machine.readAllStandardOutput();
        return sortie.contains(ligne);
    };
    machine.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../tools/machine/machine"),
                  {QStringLiteral("--lien"), lien, QStringLiteral("--stockage"), dossier.path(),
                   QStringLiteral("--envoie"), dossier.filePath(QStringLiteral("piece.txt")),
                   QStringLiteral("--vitesse"), QStringLiteral("115200")});
    QTRY_VERIFY(dit("Keys"));
    {
        const Pc pc(lien);
        QVERIFY(pc.Ecrit("%\r\nN2\4"));
        QTRY_VERIFY(dit("Program received: 6 characters") && dit("stored as 002.txt"));
        machine.write("h\nr\n e \n");
        QVERIFY(machine.waitForBytesWritten());
        QCOMPARE(pc.Lit(7), "\x13\x11N1\r\n\4");
        QVERIFY(pc.Ecrit("\4"));
        QTRY_VERIFY(dit("came back right"));
    }
    machine.closeWriteChannel();
    machine.terminate();
    QVERIFY(machine.waitForFinished());
    QCOMPARE(machine.exitStatus(), QProcess::NormalExit);
    QCOMPARE(machine.exitCode(), 0);
    QCOMPARE(QFileInfo(lien).isSymLink(), false);
    QFile recu(dossier.filePath(QStringLiteral("002.txt")));
    QVERIFY(recu.open(QIODevice::ReadOnly));
    QCOMPARE(recu.readAll(), "%\r\nN2");
}

QTEST_GUILESS_MAIN(TestMachine)
#include "TestMachine.moc"
